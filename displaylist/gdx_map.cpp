#include "displaylist/gdx_map.h"

#include "foundation/base/qor_map_templ.h"
#include "foundation/base/qor_str_fcn.h"
#include "foundation/data_tree.h"
#include "foundation/geometry.h"
#include "foundation/records/color_value.h"

namespace {

// The map lives as long as the library; its entries own their documents.
CQorMapTempl<int, CQorGDX>& documents() {
    static CQorMapTempl<int, CQorGDX> map;
    return map;
}

// The configuration keys of the colour table (modes 1 to 5), then the background.
const wchar_t* const kColorKeys[] = {
    L"ORV_MENU\\COLOR\\HIGHLIGHT", L"ORV_MENU\\COLOR\\REFER", L"ORV_MENU\\COLOR\\AXIS",
    L"ORV_MENU\\COLOR\\BASE",      L"ORV_MENU\\COLOR\\AUX",   L"ORV_MENU\\COLOR\\BACKGROUND",
};

// An int from the item's key, else from the configuration path; 0 when neither has it.
int intFromItemOrConfig(const CQorDataItem* item, const wchar_t* key, const wchar_t* path) {
    int value = 0;
    if (item) {
        const CQorDataKey k(key);
        if (item->get(value, &k))
            return value;
    }
    if (const CQorDataItem* cfg = QOR::cfg_get(path))
        cfg->get(value, nullptr);
    return value;
}

} // namespace

CQorGDX* getGdxFromMap(int key) {
    return documents().lookup(key);
}

int gdxMapKeyNew() {
    int key = 1;
    int pos = 0;
    while (documents().find(key, pos))
        ++key;
    return key;
}

void gdxMapSetAt(int key, CQorGDX& gdx) {
    CQorMapTempl<int, CQorGDX>& map = documents();
    int pos = 0;
    if (!map.find(key, pos))
        map.insertAt(pos, key, CQorGDX());
    map.valueAt(pos) = gdx;
}

bool gdxMapRemoveAt(int key) {
    return documents().remove(key);
}

int createGdxInMap(CQorDataItem* item) {
    if (item && !item->isDir())
        item = nullptr;
    CQorColor background;
    background.setColorIndex(0);

    // Point size and style go through an int on this road.
    const int pdSize = intFromItemOrConfig(item, L"PDSIZE", L"ORV_MENU\\COLOR\\PDSIZE");
    const int pdMode = intFromItemOrConfig(item, L"PDMODE", L"ORV_MENU\\COLOR\\PDMODE");

    CQorPoint3dArray corners;
    CQorMatrix3d proj;
    if (item) {
        const CQorDataKey extKey(L"EXTVIEW");
        item->get(corners, &extKey);
        const CQorDataKey mtxKey(L"MTX");
        dataItemGet(item, &mtxKey, static_cast<double(*)[4]>(proj));
    }
    const int key = gdxMapKeyNew();
    CQorGDX fresh(background, proj, static_cast<double>(pdSize), static_cast<unsigned long>(pdMode),
                  corners[0], corners[1]);
    gdxMapSetAt(key, fresh);
    CQorGDX* gdx = getGdxFromMap(key);
    if (!gdx)
        return -1;

    for (int i = 0; i < 6; ++i) {
        CQorColor color;
        const CQorDataItem* cfg = QOR::cfg_get(kColorKeys[i]);
        int index = 0;
        if (cfg && cfg->get(index, nullptr))
            color.setColorIndex(static_cast<short>(index));
        else if ((cfg = QOR::cfg_get(kColorKeys[i])) != nullptr)
            dataItemGet(cfg, nullptr, color);
        if (i < 5)
            gdx->ColorTabSet(i + 1, color);
        else
            gdx->backColorSet(color);
    }
    if (!item)
        return key;

    int colorIndex = 0;
    const CQorDataKey colorKey(L"COLOR");
    if (!item->get(colorIndex, &colorKey))
        return key;
    background.setColorIndex(static_cast<short>(colorIndex));
    CQorString text;
    const CQorDataKey rgbKey(L"RGB");
    if (item->get(text, &rgbKey))
        background.setColor(static_cast<unsigned long>(QOR::atoi(text)));
    const CQorDataKey tblKey(L"TBL");
    if (item->get(text, &tblKey))
        background.setNames(text, text);
    gdx->backColorSet(background);
    return key;
}
