#include "styling/hatch_lines.h"

#include <cmath>

namespace {

using QOR::kPi;
using Regions = CQorArrayTempl<CQorVertexArray>;

void appendTransformed(Regions& out, const Regions& parts, const CQorMatrix3d& mtx) {
    for (int p = 0; p < parts.len(); ++p)
        out.append(parts[p].getTransformedCopy(mtx));
}

// A count in whole units as an int; one out of the int range gives no rows.
int wholeCount(double lowest, double highest) {
    const double count = std::fabs(std::trunc(lowest) - std::trunc(highest));
    if (!std::isfinite(count) || count > 2147483647.0)
        return 0;
    return static_cast<int>(count);
}

void dotGrid(const Regions& regions, const CQorMatrix3d& mtx, double step, Regions& out) {
    CQorPoint3d lo;
    CQorPoint3d hi;
    regions[0].extents(lo, hi);
    const double bound = (hi.y - lo.y) / step + 1.0;
    // A step of 0.0 over a region with height would never end.
    if (!std::isfinite(bound))
        return;
    const CQorLineParm dots(0.0, -step);
    for (int i = 0; bound > i && i < 2147483647; ++i) {
        const double y = lo.y + i * step;
        const CQorVertexArray row(CQorVertex(CQorPoint3d(lo.x - QOR::kHatchOldOvershoot, y, 0.0),
                                             CQorPoint3d(hi.x + QOR::kHatchOldOvershoot, y, 0.0)));
        const Regions pieces = QOR::g_vl_punch_reg(row, regions, true);
        for (int p = 0; p < pieces.len(); ++p)
            appendTransformed(out, QOR::g_vl_measure(pieces[p], 1.0, dots), mtx);
    }
}

void parallelLines(const Regions& regions, const CQorMatrix3d& mtx, double step, double angle,
                   Regions& out) {
    const CQorVertexArray& first = regions[0];
    const CQorPoint3dArray e = QOR::g_vl_extmax(first, -angle);
    const CQorPoint3dArray r = QOR::g_vl_extmax(QOR::g_vl_extrect(first, 0.0), -angle);
    const double d = r[0].distanceTo(r[1]);
    CQorVertexArray row(CQorVertex(QOR::polar(r[0], kPi - angle, d), QOR::polar(r[0], -angle, d)));
    const CQorVector3d move = QOR::polar(kPi / 2.0 - angle, step);
    // The row count is the extent in whole units, not divided by step.
    const int count = std::fabs(e[0].x - e[1].x) > std::fabs(e[0].y - e[1].y)
                          ? wholeCount(e[0].x, e[1].x)
                          : wholeCount(e[0].y, e[1].y);
    for (int i = 0; i < count; ++i) {
        appendTransformed(out, QOR::g_vl_punch_reg(row, regions, true), mtx);
        row.move(move);
    }
}

} // namespace

CQorArrayTempl<CQorVertexArray> qor_gdx_image_reg_hatch(CQorArrayTempl<CQorVertexArray> regions,
                                                        const CQorMatrix3d& mtx,
                                                        const CQorString& name, double step,
                                                        double angle) {
    QOR::g_vll_orient(regions, CQorVector3d::kZAxis);
    const CQorMatrix3d inv = mtx.inverse();
    for (int c = 0; c < regions.len(); ++c)
        regions[c].transformBy(inv);
    if (regions.len() == 0)
        regions.append(CQorVertexArray());

    Regions out;
    if (name == L"DOTS")
        dotGrid(regions, mtx, step, out);
    else
        parallelLines(regions, mtx, step, angle, out);
    return out;
}
