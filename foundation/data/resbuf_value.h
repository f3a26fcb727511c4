// Values as resbuf chains and back: the encodings of every type the data tree keeps.
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_string.h"
#include "foundation/data/resbuf.h"
#include "foundation/geometry/qor_matrix3d.h"
#include "foundation/geometry/qor_point3d.h"
#include "foundation/geometry/qor_point3d_array.h"
#include "foundation/geometry/qor_vertex_array.h"

// Encodings (ADS type codes; every chain is owned by the caller):
//  - int: one 5010 node; a real: one node of the given type (5001, or 5004 angle);
//  - string: one 5005 node;
//  - array of int or of strings: 5016, one node per element, 5017;
//  - matrix (4 by 4 doubles, row by row): 5016, four rows of 5016 + four 5001 + 5017,
//    5017;
//  - point: one 5009 node; array of points: 5016, one 5009 per point, 5017;
//  - vertex array: 5016, its normal as 5009, then per vertex a list of start (5009),
//    end (5009), bulge (5001) and attribute (5010, the 32 bits), 5017;
//  - region (array of vertex arrays) and list of regions: a list of their elements;
//    an empty element inside such a list is nil;
//  - an empty array (no elements, no vertices): nil (5019), which removes an entry
//    when written.
namespace QOR {

QOR_API resbuf* mkResbuf(int value);
QOR_API resbuf* mkResbuf(double value, short type = 5001);
QOR_API resbuf* mkResbuf(const CQorString& value);
QOR_API resbuf* mkResbuf(const wchar_t* value);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<int>& value);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<CQorString>& value);
QOR_API resbuf* mkResbuf(const double (*matrix)[4]);
QOR_API resbuf* mkResbuf(const CQorMatrix3d& matrix);
QOR_API resbuf* mkResbuf(const CQorPoint3d& point);
QOR_API resbuf* mkResbuf(const CQorPoint3dArray& points);
QOR_API resbuf* mkResbuf(const CQorVertexArray& vl);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<CQorVertexArray>& region);
QOR_API resbuf* mkResbuf(const CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& regions);

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
QOR_API bool rbRead(const resbuf* chain, CQorMatrix3d& out);
QOR_API bool rbRead(const resbuf* chain, CQorPoint3d& out);
QOR_API bool rbRead(const resbuf* chain, CQorPoint3dArray& out);
QOR_API bool rbRead(const resbuf* chain, CQorVertexArray& out);
QOR_API bool rbRead(const resbuf* chain, CQorArrayTempl<CQorVertexArray>& out);
QOR_API bool rbRead(const resbuf* chain, CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out);

// Reads a list of regions from the chain at `chain` (a list as mkResbuf makes it,
// or nil for none) and moves `chain` past it. False, with `out` and `chain`
// unchanged, when the chain holds no list of regions there. The int is unused.
QOR_API bool fromRb(CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>& out, resbuf*& chain, int flag);

// The end of the list that starts at `list` (its 5016): the node after its 5017.
// Sets `ok` false when the chain does not start a balanced list.
QOR_API const resbuf* rbListEnd(const resbuf* list, bool& ok);

} // namespace QOR
