// The crossings of a hatch row with the contours of a region, and the names of the
// plain user hatch.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"

namespace QOR {

// The crossings of the first vertex of line with all contours, each point once,
// sorted along the vector from the end of that vertex to its start. An odd count
// gives an empty array, so spans are never paired across a lost crossing.
CQorPoint3dArray hatchLineCrossings(const CQorArrayTempl<CQorVertexArray>& contours,
                                    const CQorVertexArray& line);

// The table of the names "_USER" and "_U": one family along x, rows 1.0 apart.
bool hatchIsUserName(const CQorString& name);

} // namespace QOR
