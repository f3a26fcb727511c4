#include "images/image_drill.h"

#include "displaylist/display_item.h"
#include "displaylist/gdx.h"
#include "foundation/application.h"
#include "foundation/application/model_services.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"
#include "foundation/geometry/qor_vertex_array_ex.h"
#include "foundation/records/layer_mgr.h"

namespace {

// The view in which the drill is drawn as its projected solid.
constexpr int kProjectedView = 3;
// The modeler type of the solid kernel calls.
constexpr QOR_MODELER_TYPE kModeler = 1;
// Colour mode "base" in the flag word (bits 8 to 11).
constexpr unsigned long kFlagColorModeBase = 1024;
// Point size and style that take the document's defaults.
constexpr double kDocumentPdSize = 0.0;
constexpr unsigned long kDocumentPdMode = 0xFFFFFFFF;

bool drawProjection(CQorGDX* gdx, CQorDataItem* object, const CQorArrayTempl<int>& stack) {
    CQor_Solid solid;
    if (!QOR::objModel(solid, object))
        return false;
    solid.solid();
    CQorVector3d x(1.0, 1.0, 0.0);
    CQorVector3d z(1.0, -1.0, 1.0);
    x.normalize();
    z.normalize();
    const CQorVector3d y = z * x;
    CQorMatrix3d view;
    view.setCoordSystem(CQorPoint3d::kOrigin, x, y, z);
    CQorArrayTempl<CQorVertexArrayEx> first, second;
    solid.evaluate(kModeler);
    solid.project(view, false, first, second, kModeler);

    CQorString layer(L"0");
    const CQorDataKey layerKey(L"PART_SOLID");
    object->get(layer, &layerKey);
    QOR::CLayerProp prop;
    const CQorLayerMgr layers;
    layers.physLayerPropGet(layer.c_str(), prop);

    CQorArrayTempl<double> solidLine;
    solidLine.append(1.0);
    for (int i = 0; i < first.len(); ++i)
        gdx->imageVl(stack, 0, first[i], prop.color, CQorMatrix3d(), solidLine, 1.0, 0,
                     CQorPoint3d::kOrigin);
    return true;
}

} // namespace

bool qor_gdx_image_drill(CQorGDX* gdx, QOR::CDtaFilePointer* object, QOR::CDtaFilePointer* params) {
    if (!gdx)
        return false;
    int mode = 0;
    CQorMatrix3d mtx;
    bool coord = false;
    CQorArrayTempl<int> stack;
    const CQorDataKey modeKey(L"CMODE"), mtxKey(L"MTX"), coordKey(L"COORD"), stackKey(L"STACK");
    CQorDataItem* p = QOR::dtaGet(params, nullptr);
    if (p && p->isDir()) {
        p->get(mode, &modeKey);
        dataItemGet(p, &mtxKey, static_cast<double(*)[4]>(mtx));
        p->get(coord, &coordKey);
        p->get(stack, &stackKey);
    }
    stack.append(1);

    CQorDataItem* obj = QOR::dtaGet(object, nullptr);
    if (obj) {
        int view = 0;
        const CQorDataKey viewKey(L"VIEW");
        obj->get(view, &viewKey);
        if (view == kProjectedView)
            return drawProjection(gdx, obj, stack);
    }

    CQorDataItem hostParams(1);
    dataItemSet(&hostParams, &modeKey, mode);
    dataItemSet(&hostParams, &mtxKey, static_cast<double(*)[4]>(mtx));
    QOR::dataItemSetChain(&hostParams, &stackKey, QOR::mkResbuf(stack));
    qorAppPtr()->objImage(gdx, obj, &hostParams);
    if (coord) {
        ++stack[-1];
        gdx->imagePt(stack, kFlagColorModeBase, CQorPoint3d::kOrigin, CQorColor(), CQorMatrix3d(),
                     kDocumentPdSize, kDocumentPdMode, CQorPoint3d::kOrigin);
    }
    return true;
}
