// The hatch engine: rows of a named pattern over a region, the density guard and
// the older engine of parallel lines and dot grids.
//
// Everything works in the region's own coordinates in double precision; scale is
// the only scale. Only qor_gdx_pattern_test looks at device units, through its
// matrix. A region list is the outer contour followed by its holes.
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
constexpr long long kHatchAscentFactor = 3;  // upward budget in row budgets
constexpr double kHatchGuardMostRows = 95.0; // qor_gdx_pattern_test
constexpr double kHatchGuardLeastDist = 2.3; // device units
// Most steps of the first descent from the base point down to the region.
constexpr long long kHatchFirstDescentMostSteps = 4000000;
constexpr double kHatchOldOvershoot = 10.0; // older dot grid, each side

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
QOR_API CQorArrayTempl<CQorVertexArray> hatchRegion2(CQorArrayTempl<CQorVertexArray> regions,
                                                     const CQorMatrix3d& mtx,
                                                     const CHatchProp& prop,
                                                     CQorArrayTempl<HatchFamilyStats>* stats);

// The crossings of the first vertex of line with all contours, each point once,
// sorted along the vector from the end of that vertex to its start. An odd count
// gives an empty array, so spans are never paired across a lost crossing.
QOR_API CQorPoint3dArray hatchLineCrossings(const CQorArrayTempl<CQorVertexArray>& contours,
                                            const CQorVertexArray& line);

// The table of the names "_USER" and "_U": one family along x, rows 1.0 apart.
QOR_API bool hatchIsUserName(const CQorString& name);

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

// The density guard: false when the pattern prop.name would be too dense to draw,
// that is when some family has QOR::kHatchGuardMostRows or more rows (or shifts)
// over the region, or when the smallest row distance or shift, brought to device
// units by mtx (the whole way from the item to the device), is
// QOR::kHatchGuardLeastDist or less. An unknown name gives true (unless mtx maps
// the x axis to nothing).
QOR_API bool qor_gdx_pattern_test(CQorArrayTempl<CQorVertexArray> regions,
                                  const QOR::CHatchProp& prop, const CQorMatrix3d& mtx);

// The older engine. name "DOTS": a grid of dots step apart in rows step apart over
// the box of the first contour, clipped to the region; angle is not used. Any
// other name: parallel lines step apart at angle, clipped to the region, as many
// rows as the first contour is wide (in whole units, not divided by step). A step
// that makes the number of rows of the dot grid not finite draws nothing.
QOR_API CQorArrayTempl<CQorVertexArray>
qor_gdx_image_reg_hatch(CQorArrayTempl<CQorVertexArray> regions, const CQorMatrix3d& mtx,
                        const CQorString& name, double step, double angle);
