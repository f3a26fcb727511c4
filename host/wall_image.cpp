#include "host/wall_image.h"

#include "displaylist/gdx.h"
#include "foundation/application/model_services.h"
#include "foundation/data/resbuf_value.h"
#include "foundation/data_tree.h"
#include "foundation/records/hatch_prop.h"

namespace {

// Flag words: outline only, in colour mode item or highlight; the base point in
// colour mode base.
constexpr unsigned long kFlagShell = 16;
constexpr unsigned long kFlagActiveShell = 16 | 256;
constexpr unsigned long kFlagBasePoint = 1024;
// Point size and style that take the document's defaults.
constexpr double kDocumentPdSize = 0.0;
constexpr unsigned long kDocumentPdMode = 0xFFFFFFFF;

} // namespace

bool qorHostWallImage(CQorGDX* gdx, QOR::CDtaFilePointer* object, QOR::CDtaFilePointer* params) {
    if (gdx == nullptr)
        return false;
    const CQorDataItem* p = QOR::dtaGet(params, nullptr);
    const CQorDataItem* wall = QOR::dtaGet(object, nullptr);
    const CQorDataKey vlKey(L"VL"), actKey(L"ACT"), coordKey(L"COORD"), sKey(L"S");
    CQorVertexArray line;
    if (!(p != nullptr && p->get(line, &vlKey) && line.len() > 0) && wall != nullptr)
        wall->get(line, &vlKey);
    if (line.len() == 0)
        return false;
    bool hasAct = false;
    int act = 0;
    int coord = 0;
    if (p != nullptr) {
        hasAct = p->get(act, &actKey);
        p->get(coord, &coordKey);
    }

    CQorArrayTempl<double> solidLine;
    solidLine.append(1.0);
    // Each shell is the flat sheet of its thickness along the face that the shell
    // before it left, the first along the line itself.
    CQorDataItem band(1);
    QOR::dataItemSetChain(&band, &vlKey, QOR::mkResbuf(line));
    int drawn = 0;
    const CQorDataKey shellsKey(L"SN");
    for (QOR::CDataIterator it(wall ? wall->getItem(&shellsKey) : nullptr); !it.done(); it.next()) {
        const CQorDataItem* shell = it.item();
        const CQorDataKey* key = shell->getKey();
        double s = 0.0;
        shell->get(s, &sKey);
        dataItemSet(&band, &sKey, s);
        CQorArrayTempl<CQorVertexArray> vll;
        CQorVertexArray face, next;
        if (key == nullptr || !QOR::fsheet_vll_fnc(&band, vll, face, next))
            continue;
        CQorArrayTempl<int> stack;
        stack.append(key->number());
        const bool active = hasAct && key->isInt() && key->number() == act;
        gdx->imageReg(stack, active ? kFlagActiveShell : kFlagShell, vll, CQorColor(),
                      CQorMatrix3d(), solidLine, 1.0, 0, CQorColor(), QOR::CHatchProp(),
                      CQorPoint3d::kOrigin);
        QOR::dataItemSetChain(&band, &vlKey, QOR::mkResbuf(next));
        ++drawn;
    }
    const CQorArrayTempl<int> noGroup;
    if (drawn == 0)
        gdx->imageVl(noGroup, 0, line, CQorColor(), CQorMatrix3d(), solidLine, 1.0, 0,
                     CQorPoint3d::kOrigin);
    if (coord != 0)
        gdx->imagePt(noGroup, kFlagBasePoint, line[0].m_start, CQorColor(), CQorMatrix3d(),
                     kDocumentPdSize, kDocumentPdMode, CQorPoint3d::kOrigin);
    return true;
}
