#include "styling/hatch_density_guard.h"

#include "foundation/application/qor_app.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace {
using QOR::kPi;
constexpr double kDegree = kPi / 180.0;
} // namespace

bool qor_gdx_pattern_test(CQorArrayTempl<CQorVertexArray> regions, const QOR::CHatchProp& prop,
                          const CQorMatrix3d& mtx) {
    const double factor = (CQorVector3d::kXAxis * mtx).abs();
    CQorArrayTempl<CQorArrayTempl<double>> table;
    if (CQorApp* app = qorAppPtr())
        app->hatchPatternGet(prop.name, table);

    QOR::g_vll_orient(regions, CQorVector3d::kZAxis);
    double most = -DBL_MAX;
    double least = DBL_MAX;
    for (int f = 0; f < table.len(); ++f) {
        const CQorArrayTempl<double>& line = table[f];
        double rowShift = QOR::nan();
        double rowDist = QOR::nan();
        if (line.len() > 3 && line[3] != 0.0)
            rowShift = prop.scale * line[3];
        if (line.len() > 4 && line[4] != 0.0)
            rowDist = line[4] * prop.scale;

        const double a = line[0] * kDegree;
        CQorMatrix3d frame;
        frame.setCoordSystem(CQorPoint3d::kOrigin, QOR::polar(a, 1.0),
                             QOR::polar(a + kPi / 2.0, 1.0), CQorVector3d::kZAxis);
        const CQorMatrix3d frameInv = frame.inverse();
        const CQorVertexArray first =
            regions.len() > 0 ? regions[0].getTransformedCopy(frameInv) : CQorVertexArray();
        const CQorPoint3dArray e = QOR::g_vl_extmax(first, 0.0);
        const double w = std::fabs(e[0].x - e[1].x);
        const double h = std::fabs(e[0].y - e[1].y);
        // The ratios keep their sign: a negative shift or distance cannot raise most.
        if (std::isfinite(rowShift)) {
            most = std::max(most, w / rowShift);
            least = std::min(least, std::fabs(rowShift));
        }
        if (std::isfinite(rowDist)) {
            most = std::max(most, h / rowDist);
            least = std::min(least, std::fabs(rowDist));
        }
    }
    least = least * factor;
    return QOR::kHatchGuardMostRows > most && least > QOR::kHatchGuardLeastDist;
}
