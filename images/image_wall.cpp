#include "images/image_wall.h"

#include "foundation/data_tree.h"
#include "images/image_registry.h"

#include <memory>

bool qor_wall_edit_image(CQorGDX* gdx, QOR::CDtaFilePointer* object) {
    if (gdx == nullptr)
        return false;
    const std::unique_ptr<QOR::CDtaFilePointer> paramFile(
        QOR::dtaOpen(QOR::QorDtaMemory, 3, nullptr, nullptr));

    CQorArrayTempl<CQorDataKey> shells;
    if (object != nullptr) {
        const CQorDataKey shellsKey(L"SN");
        object->dir(shells, &shellsKey);
    }

    int active = 0;
    bool found = false;
    if (const CQorDataItem* bt = QOR::cfg_get(L"*WALL_EDIT*\\BT"))
        found = bt->get(active, nullptr);
    // A configured shell that the wall does not have gives way to the wall's first.
    if (shells.len() > 0) {
        const CQorDataKey activeKey(5003, active, 0);
        bool hit = false;
        for (const CQorDataKey& key : shells)
            if (key == activeKey)
                hit = true;
        if (!hit) {
            found = true;
            active = shells[0].number();
        }
    }

    CQorString mode;
    CQorVertexArray vl;
    if (const CQorDataItem* item = QOR::cfg_get(L"*WALL_EDIT*\\MODE"))
        item->get(mode, nullptr);
    if (const CQorDataItem* item = QOR::cfg_get(L"*WALL_EDIT*\\VL"))
        item->get(vl, nullptr);
    CQorString cornerMode;
    if (const CQorDataItem* root = QOR::dtaGet(object, nullptr)) {
        const CQorDataKey cornerKey(L"CORNER\\MODE");
        root->get(cornerMode, &cornerKey);
    }

    CQorDataItem* params = paramFile ? paramFile->root() : nullptr;
    const CQorDataKey vlKey(L"VL"), actKey(L"ACT"), coordKey(L"COORD");
    QOR::dataItemSetChain(params, &vlKey, QOR::mkResbuf(vl));
    if (mode == L"SHELL" || (mode == L"CORNER" && cornerMode == L"SHELL"))
        dataItemSet(params, &actKey, active);
    dataItemSet(params, &coordKey, 1);

    return found && qor_gdx_image(L"WALL", gdx, object, paramFile.get());
}
