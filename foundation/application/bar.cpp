#include "foundation/application/bar.h"

#include "foundation/application/g_outline.h"
#include "foundation/data/data_item.h"
#include "foundation/data/data_key.h"
#include "foundation/data/dta_file_pointer.h"
#include "foundation/geometry/qor_geom_fcn.h"

namespace QOR {

CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> bar_regl(CDtaFilePointer* file,
                                                         const CQorMatrix3d& mtx) {
    CQorArrayTempl<CQorArrayTempl<CQorVertexArray>> regions;
    if (file == nullptr || file->root() == nullptr)
        return regions;
    const CQorDataItem* root = file->root();
    const CQorDataKey reglKey(L"REGL"), vlKey(L"VL"), codeKey(L"CODE");
    if (!dataItemGet(root, &reglKey, regions) || regions.len() == 0) {
        regions = CQorArrayTempl<CQorArrayTempl<CQorVertexArray>>();
        CQorArrayTempl<CQorVertexArray> loose;
        if (dataItemGet(root, &vlKey, loose) && loose.len() > 0)
            regions = g_vll_regions(g_vll_regions_prepare(loose), 4);
    }
    if (regions.len() == 0 && root->getItem(&codeKey) != nullptr) {
        CQorVertexArray vl;
        if (g_outline(vl, root, static_cast<Qor::lUnit>(-1))) {
            CQorArrayTempl<CQorVertexArray> one;
            one.append(vl);
            regions.append(one);
        }
    }
    for (CQorArrayTempl<CQorVertexArray>& region : regions)
        for (CQorVertexArray& vl : region)
            vl.transformBy(mtx);
    return regions;
}

bool bar_bt_subs(CQorArrayTempl<CQorDataKey>& out, CQorDataItem* root, const wchar_t* group,
                 const wchar_t* bar) {
    out = CQorArrayTempl<CQorDataKey>();
    if (root == nullptr || group == nullptr || bar == nullptr)
        return false;
    const CQorDataKey groupKey(group);
    const CQorDataItem* g = root->getItem(&groupKey);
    if (g == nullptr || !g->isDir())
        return false;
    const CQorDataKey barKey(bar);
    const CQorDataItem* b = g->getItem(&barKey);
    if (b == nullptr || !b->isDir())
        return false;
    CQorArrayTempl<CQorString> subs;
    const CQorDataKey subsKey(L"SUBS");
    b->get(subs, &subsKey);
    for (const CQorString& s : subs) {
        CQorDataKey key;
        key.appendString(s.c_str());
        const CQorDataItem* sub = g->getItem(&key);
        if (sub != nullptr && sub->isDir())
            out.append(key);
    }
    return true;
}

} // namespace QOR
