// The hatch engine: rows of a named pattern over a region. The density guard is in
// hatch_density_guard.h, the older engine of parallel lines and dot grids in
// hatch_lines.h, the crossings of a row with the contours in hatch_crossings.h.
//
// Everything works in the region's own coordinates in double precision; scale is
// the only scale. A region list is the outer contour followed by its holes.
#pragma once

#include "foundation/base/qor_export.h"
#include "foundation/geometry.h"
#include "foundation/records/hatch_prop.h"

namespace QOR {

// Constants of the engine.
constexpr double kHatchSeedNoDashes = 15.0;     // half row length in region diagonals
constexpr double kHatchSeedDashes = 20.0;       // half row length in pattern periods
constexpr double kHatchSeedGravelSmall = 200.0; // "GRAVEL" below scale 1.0
constexpr double kHatchSeedGravel = 150.0;      // "GRAVEL" from scale 1.0 on
constexpr long long kHatchBudget = 20;          // row budget per row of the region
constexpr long long kHatchBudgetGravelSmall = 200;
constexpr long long kHatchAscentFactor = 3; // upward budget in row budgets
// Most steps of the first descent from the base point down to the region.
constexpr long long kHatchFirstDescentMostSteps = 4000000;

// What one family of qor_gdx_image_reg_hatch2 did: its row count over the first
// contour, the half length of its rows, its budget (limit), the steps of the
// first descent, the steps it took in the second descent and in the ascent, the rows it gave, and
// whether the ascent ended by running out of budget rather than by leaving the
// first contour after a hit.
struct HatchFamilyStats {
    int rows = 0;
    double halfLen = 0.0;
    long long limit = 0;
    long long firstDescentSteps = 0;
    long long descentSteps = 0;
    long long ascentSteps = 0;
    int rowsOut = 0;
    bool budgetRanOut = false;
};

// qor_gdx_image_reg_hatch2 with a record of each family (appended to stats in the
// order of hatching, the turned family of a cross hatch first). stats may be null.
CQorArrayTempl<CQorVertexArray> hatchRegion2(CQorArrayTempl<CQorVertexArray> regions,
                                             const CQorMatrix3d& mtx, const CHatchProp& prop,
                                             CQorArrayTempl<HatchFamilyStats>* stats);

} // namespace QOR

// The hatch rows of the pattern prop.name (from qorAppPtr()->hatchPatternGet; the
// names "_USER" and "_U" mean one family of plain lines with rows prop.scale
// apart, and only these consult prop.cross, which adds the family turned by 90
// degrees ahead of the rest) turned by prop.angle about the origin and scaled by
// prop.scale. mtx places the hatch frame: the contours go through its inverse and
// the rows through mtx. Each element of the result is the visible strokes of one
// row, inside the region and outside its holes. An unknown name, an empty region
// or a family without row distance gives no rows.
QOR_API CQorArrayTempl<CQorVertexArray>
qor_gdx_image_reg_hatch2(CQorArrayTempl<CQorVertexArray> regions, const CQorMatrix3d& mtx,
                         const QOR::CHatchProp& prop);
