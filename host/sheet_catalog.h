// The default host's catalogue of sheet definitions, behind QOR::fsheet_get
// (foundation/application/fsheet.h describes its keys).
#pragma once

#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_export.h"
#include "foundation/base/qor_string.h"

class CQorDataItem;

namespace QOR {

// The catalogue's root directory (process-wide, empty at start).
QOR_API CQorDataItem* fsheetCatalog();
// Replaces the catalogue by the tree of a file in the data text format; false,
// with the catalogue unchanged, if the file cannot be read.
QOR_API bool fsheetCatalogLoad(const wchar_t* fileName);
// Empties the catalogue.
QOR_API void fsheetCatalogClear();

namespace host {
// The definition at the path `stack` in the catalogue, as a root item that stays
// valid until the catalogue is loaded or cleared again; null for an empty path or
// when there is no directory at the path.
QOR_API CQorDataItem* sheetCatalogGet(const CQorArrayTempl<CQorString>& stack);
} // namespace host

} // namespace QOR
