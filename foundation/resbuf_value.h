// Values as resbuf chains and back: the encodings of every type the data tree keeps.
#pragma once

#include "foundation/qor_array_templ.h"
#include "foundation/qor_string.h"
#include "foundation/resbuf.h"

// Encodings (ADS type codes; every chain is owned by the caller):
//  - int: one 5010 node; a real: one node of the given type (5001, or 5004 angle);
//  - string: one 5005 node;
//  - array of int or of strings: 5016, one node per element, 5017;
//  - matrix (4 by 4 doubles, row by row): 5016, four rows of 5016 + four 5001 + 5017,
//    5017;
//  - an empty array: nil (5019), which removes an entry when written.
namespace QOR {

QOR_API resbuf* mkResbuf(int value);
QOR_API resbuf* mkResbuf(double value, short type = 5001);
QOR_API resbuf* mkResbuf(const CQorString& value);
QOR_API resbuf* mkResbuf(const wchar_t* value);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<int>& value);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<CQorString>& value);
QOR_API resbuf* mkResbuf(const double (*matrix)[4]);

// Decoders of a whole chain; the conversions of CQorDataItem::get. False, with
// `out` unchanged, when the chain does not hold that type.
QOR_API bool rbRead(const resbuf* chain, bool& out);
QOR_API bool rbRead(const resbuf* chain, int& out);
QOR_API bool rbRead(const resbuf* chain, unsigned long& out);
QOR_API bool rbRead(const resbuf* chain, double& out);
QOR_API bool rbRead(const resbuf* chain, CQorString& out);
QOR_API bool rbRead(const resbuf* chain, CQorArrayTempl<int>& out);
QOR_API bool rbRead(const resbuf* chain, CQorArrayTempl<CQorString>& out);
QOR_API bool rbReadMatrix(const resbuf* chain, double (*out)[4]);

// The end of the list that starts at `list` (its 5016): the node after its 5017.
// Sets `ok` false when the chain does not start a balanced list.
QOR_API const resbuf* rbListEnd(const resbuf* list, bool& ok);

} // namespace QOR
