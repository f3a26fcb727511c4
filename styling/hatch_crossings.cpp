#include "styling/hatch_crossings_p.h"

namespace QOR {

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
