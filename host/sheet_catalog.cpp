#include "host/sheet_catalog.h"

#include "foundation/base/qor_map_templ.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/data/data_text_format.h"

namespace QOR {
namespace {

CQorDataItem& catalog() {
    static CQorDataItem root(1);
    return root;
}

// Definitions handed out, as roots of their own, by path.
CQorMapTempl<CQorString, CQorDataItem>& handedOut() {
    static CQorMapTempl<CQorString, CQorDataItem> map;
    return map;
}

} // namespace

CQorDataItem* fsheetCatalog() {
    return &catalog();
}

bool fsheetCatalogLoad(const wchar_t* fileName) {
    CQorDataItem root(1);
    CQorString error;
    if (fileName == nullptr || !dataTextReadFile(fileName, root, error))
        return false;
    handedOut().clear();
    catalog() = root;
    return true;
}

void fsheetCatalogClear() {
    handedOut().clear();
    catalog() = CQorDataItem(1);
}

CQorDataItem* host::sheetCatalogGet(const CQorArrayTempl<CQorString>& stack) {
    if (stack.len() == 0)
        return nullptr;
    CQorDataKey key;
    CQorString path;
    for (const CQorString& s : stack) {
        key.appendString(s.c_str());
        path += s.c_str();
        path += L"\\";
    }
    if (CQorDataItem* known = handedOut().lookup(path))
        return known;
    const CQorDataItem* item = catalog().getItem(&key);
    if (item == nullptr || !item->isDir())
        return nullptr;
    return &handedOut().setAt(path, *item);
}

} // namespace QOR
