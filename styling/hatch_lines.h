// The older hatch engine: parallel lines and dot grids over a region.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"

namespace QOR {

constexpr double kHatchOldOvershoot = 10.0; // older dot grid, each side

} // namespace QOR

// The older engine. name "DOTS": a grid of dots step apart in rows step apart over
// the box of the first contour, clipped to the region; angle is not used. Any
// other name: parallel lines step apart at angle, clipped to the region, as many
// rows as the first contour is wide (in whole units, not divided by step). A step
// that makes the number of rows of the dot grid not finite draws nothing.
QOR_API CQorArrayTempl<CQorVertexArray>
qor_gdx_image_reg_hatch(CQorArrayTempl<CQorVertexArray> regions, const CQorMatrix3d& mtx,
                        const CQorString& name, double step, double angle);
