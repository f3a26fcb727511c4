// The density guard of the hatch engine: whether a hatch pattern is too dense to
// draw over a region at the scale of the device.
//
// The guard is the only part of the hatching that looks at device units, through
// its matrix. A region list is the outer contour followed by its holes.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"
#include "foundation/records/hatch_prop.h"

namespace QOR {

constexpr double kHatchGuardMostRows = 95.0; // qor_gdx_pattern_test
constexpr double kHatchGuardLeastDist = 2.3; // device units

} // namespace QOR

// The density guard: false when the pattern prop.name would be too dense to draw,
// that is when some family has QOR::kHatchGuardMostRows or more rows (or shifts)
// over the region, or when the smallest row distance or shift, brought to device
// units by mtx (the whole way from the item to the device), is
// QOR::kHatchGuardLeastDist or less. An unknown name gives true (unless mtx maps
// the x axis to nothing).
QOR_API bool qor_gdx_pattern_test(CQorArrayTempl<CQorVertexArray> regions,
                                  const QOR::CHatchProp& prop, const CQorMatrix3d& mtx);
