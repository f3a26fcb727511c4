// CQorColor as a value of the data tree and of resbuf chains.
#pragma once

#include "foundation/data/data_item.h"
#include "foundation/data/resbuf.h"
#include "foundation/records/qor_color.h"

// Encoding: a list (5016 ... 5017) of the index (5003; -1 for none), the value as
// 0x00BBGGRR (5010), the colour's name and its book's name (5005 each). A plain
// integer (5003, 5010, 5031) reads as a colour index.
namespace QOR {

QOR_API resbuf* mkResbuf(const CQorColor& color);

// False, with out unchanged, for anything but the two forms above. A list with an
// index of -1 gives the colour by its value.
QOR_API bool rbRead(const resbuf* chain, CQorColor& out);

} // namespace QOR

// The colour at the key below item (null key: the item itself).
QOR_API bool dataItemGet(const CQorDataItem* item, const CQorDataKey* key, CQorColor& out);
