#include "styling/hatch.h"

namespace QOR {

void vllOrient(CQorArrayTempl<CQorVertexArray>& list, const CQorVector3d& axis) {
    for (int i = 0; i < list.len(); ++i) {
        CQorVertexArray& c = list[i];
        if (c.isClosed() && !g_vl_orient(c, axis))
            c.revert();
    }
}

CQorPoint3dArray hatchLineCrossings(const CQorArrayTempl<CQorVertexArray>& contours,
                                    const CQorVertexArray& line) {
    CQorPoint3dArray result;
    for (int c = 0; c < contours.len(); ++c) {
        CQorPoint3dArray found;
        line.intersectWith(found, contours[c], 3);
        for (int k = 0; k < found.len(); ++k)
            if (result.indexOf(found[k]) < 0)
                result.append(found[k]);
    }
    if (result.len() % 2 != 0)
        result.setLogicalLength(0);
    const CQorVertex& first = line[0];
    result.sort(first.m_start - first.m_end);
    return result;
}

bool hatchIsUserName(const CQorString& name) {
    return name == L"_USER" || name == L"_U";
}

} // namespace QOR
