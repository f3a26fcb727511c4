#include "styling/hatch.h"

#include "foundation/application/qor_app.h"
#include "styling/dot_length_p.h"
#include "styling/hatch_crossings_p.h"

#include <cmath>
#include <cstdint>

namespace {

using QOR::kPi;
constexpr double kDegree = kPi / 180.0;
// The row distance of the built-in table of "_USER" and "_U".
constexpr double kUserRowDist = 1.0;

// Slack of the quick rejection of dashes far from a span, relative to the span's
// length; far above the point tolerance, so it never rejects a dash that touches.
constexpr double kRejectSlack = 1.0e-6;

using Table = CQorArrayTempl<CQorArrayTempl<double>>;
using Regions = CQorArrayTempl<CQorVertexArray>;

Table userTable() {
    Table t;
    CQorArrayTempl<double>& line = t[0];
    line.append(0.0).append(0.0).append(0.0).append(0.0).append(kUserRowDist);
    return t;
}

// The step from one row to the one below it in the family frame, and its reverse.
struct RowStep {
    double dx = 0.0;
    double dy = 0.0;

    void down(CQorVertexArray& row) const {
        if (dy > 0.0) {
            row.move(CQorVector3d(0.0, -dy, 0.0));
            if (dx != 0.0)
                row.move(CQorVector3d(-dx, 0.0, 0.0));
        } else if (dy < 0.0) {
            row.move(CQorVector3d(0.0, dy, 0.0));
            if (dx != 0.0)
                row.move(CQorVector3d(dx, 0.0, 0.0));
        }
    }
    void up(CQorVertexArray& row) const {
        if (dy > 0.0) {
            row.move(CQorVector3d(0.0, dy, 0.0));
            if (dx != 0.0)
                row.move(CQorVector3d(dx, 0.0, 0.0));
        } else if (dy < 0.0) {
            row.move(CQorVector3d(0.0, -dy, 0.0));
            if (dx != 0.0)
                row.move(CQorVector3d(-dx, 0.0, 0.0));
        }
    }
};

CQorVertexArray concat(const Regions& parts) {
    CQorVertexArray out;
    for (int p = 0; p < parts.len(); ++p)
        for (int k = 0; k < parts[p].len(); ++k)
            out.append(parts[p][k]);
    return out;
}

CQorVertexArray chordOf(const CQorVertexArray& run) {
    const CQorVertexArray& c = run;
    return CQorVertexArray(CQorVertex(c[0].m_start, c[-1].m_end));
}

// The number of rows of a family, as a 32-bit integer; a quotient that is not
// finite or out of that range gives 0, and with it a budget of 0.
int familyRows(double extent, double dy) {
    const double q = extent / std::fabs(dy) + 1.0;
    if (!std::isfinite(q) || q >= 2147483648.0 || q <= -2147483649.0)
        return 0;
    return static_cast<int>(q);
}

// The part of dash to keep when only the span end p lies on it: the half, after
// breaking the dash at p, whose middle lies inside the region.
void keepHalfAt(CQorVertexArray& kept, const CQorVertex& dash, const CQorPoint3d& p,
                const Regions& local) {
    CQorVertexArray copy(dash);
    copy.breakVertex(0, p);
    if (copy.len() != 2)
        return;
    if (QOR::g_vll_pt_inside(local, copy[0].mid()) > 0)
        kept.append(copy[0]);
    else if (QOR::g_vll_pt_inside(local, copy[1].mid()) > 0)
        kept.append(copy[1]);
}

// The strokes of one row: the spans between pairs of crossings, and with a dash
// list the dashes of work sorted into the spans.
CQorVertexArray rowStrokes(const Regions& local, const CQorVertexArray& seed,
                           const CQorVertexArray& work, bool dashed) {
    const CQorPoint3dArray crossings = QOR::hatchLineCrossings(local, seed);
    CQorVertexArray kept;
    for (int i = 0; i + 1 < crossings.len(); i += 2) {
        const CQorVertex span(crossings[i], crossings[i + 1]);
        if (!dashed) {
            kept.append(span);
            continue;
        }
        // All dashes lie on the row: one that lies wholly before or after the span
        // along it meets none of the tests below and is passed over cheaply.
        const CQorVector3d u = span.m_end - span.m_start;
        const double s0 = 0.0;
        const double s1 = u.dot(u);
        const double slack = kRejectSlack * (std::sqrt(s1) + 1.0);
        for (int k = 0; k < work.len(); ++k) {
            const CQorVertex& dash = work[k];
            const double t0 = (dash.m_start - span.m_start).dot(u);
            const double t1 = (dash.m_end - span.m_start).dot(u);
            if ((t0 < s0 - slack && t1 < s0 - slack) || (t0 > s1 + slack && t1 > s1 + slack))
                continue;
            if (dash.isPoint(span.m_start) && dash.isPoint(span.m_end)) {
                const CQorVertexArray cut =
                    QOR::g_vl_cut(CQorVertexArray(dash), span.m_start, span.m_end);
                for (int c = 0; c < cut.len(); ++c)
                    kept.append(cut[c]);
            } else if (span.isPoint(dash.m_start) && span.isPoint(dash.m_end)) {
                kept.append(dash);
            } else if (dash.isPoint(span.m_start)) {
                keepHalfAt(kept, dash, span.m_start, local);
            } else if (dash.isPoint(span.m_end)) {
                keepHalfAt(kept, dash, span.m_end, local);
            }
        }
    }
    if (kept.len() == 0)
        return kept;
    // One pass against the first contour only: the holes have acted through the
    // crossings already.
    CQorVertexArray clipped;
    const int passes = local.len() < 1 ? local.len() : 1;
    for (int c = 0; c < passes; ++c)
        clipped = concat(QOR::g_vl_punch(kept, local[c], true));
    return clipped;
}

struct Setup {
    QOR::CHatchProp prop;
    CQorMatrix3d mtx;
    CQorMatrix3d rot;
    CQorMatrix3d rotBack;
    double diag = 0.0;
    double dot = 0.0;
    bool turned = false;
    bool gravel = false;
};

void hatchFamily(const CQorArrayTempl<double>& line, const Regions& regions, const Setup& s,
                 Regions& out, QOR::HatchFamilyStats& st) {
    const double scale = s.prop.scale;
    const CQorPoint3d base(line[1] * scale, line[2] * scale, 0.0);
    const double a = line[0] * kDegree;
    CQorMatrix3d frame;
    frame.setCoordSystem(CQorPoint3d::kOrigin, QOR::polar(a, 1.0), QOR::polar(a + kPi / 2.0, 1.0),
                         CQorVector3d::kZAxis);
    const CQorMatrix3d frameInv = frame.inverse();

    Regions local;
    local.allocate(regions.len() > 0 ? regions.len() : 1);
    for (int c = 0; c < regions.len(); ++c)
        local.append(regions[c].getTransformedCopy(frameInv));
    if (local.len() == 0)
        local.append(CQorVertexArray());
    const CQorPoint3dArray extL = QOR::g_vl_extmax(local[0], 0.0);

    RowStep step;
    step.dx = line.len() > 3 ? scale * line[3] : 0.0;
    step.dy = line.len() > 4 ? line[4] * scale : 0.0;
    const int rows = familyRows(extL[0].distanceTo(extL[1]), step.dy);

    CQorArrayTempl<double> dashes;
    double sum = 0.0;
    for (int k = 5; k < line.len(); ++k) {
        if (line[k] == 0.0) {
            dashes.append(s.dot);
            sum += QOR::kDotWeight;
        } else {
            const double d = scale * line[k];
            dashes.append(d);
            sum += std::fabs(d);
        }
    }
    const bool dashed = dashes.len() > 0;

    double halfLen = s.diag * QOR::kHatchSeedNoDashes;
    if (dashed) {
        double f = QOR::kHatchSeedDashes;
        if (s.gravel)
            f = scale < 1.0 ? QOR::kHatchSeedGravelSmall : QOR::kHatchSeedGravel;
        const double m = std::trunc(s.diag / sum);
        halfLen = (m + 1.0) * sum * f;
    }

    const CQorPoint3d b = base * frameInv;
    CQorVertexArray seed(CQorVertex(QOR::polar(b, 0.0, -halfLen), QOR::polar(b, 0.0, halfLen)));

    // First descent: to just below the lowest point of the first contour. A row
    // distance below the precision of the coordinates would never arrive; the
    // descent stops after QOR::kHatchFirstDescentMostSteps steps.
    if (step.dy != 0.0)
        while (seed[0].mid().y > extL[0].y &&
               st.firstDescentSteps < QOR::kHatchFirstDescentMostSteps) {
            step.down(seed);
            ++st.firstDescentSteps;
        }

    const long long limit =
        static_cast<long long>(rows) *
        (s.gravel && scale < 1.0 ? QOR::kHatchBudgetGravelSmall : QOR::kHatchBudget);
    st.limit = limit;
    st.rows = rows;
    st.halfLen = halfLen;

    // Second descent: on below the first contour also after the turn by the
    // hatch angle, which the first descent does not see.
    for (long long n = 0; n < limit; ++n) {
        step.down(seed);
        ++st.descentSteps;
        CQorVertexArray copy = seed;
        if (s.turned)
            copy.transformBy(s.rot);
        if (local[0].intersectWith(chordOf(copy), 0).len() == 0)
            break;
    }

    bool hit = false;
    const long long upLimit = QOR::kHatchAscentFactor * limit;
    long long n = 0;
    for (; n < upLimit; ++n) {
        step.up(seed);
        ++st.ascentSteps;
        CQorVertexArray work = seed;
        if (dashed)
            work = concat(QOR::g_vl_measure(work, 1.0, CQorLineParm(dashes)));
        if (s.turned) {
            seed.transformBy(s.rot);
            work.transformBy(s.rot);
        }
        if (local[0].intersectWith(chordOf(work), 0).len() == 0) {
            if (hit)
                break;
            if (s.turned)
                seed.transformBy(s.rotBack);
            continue;
        }
        hit = true;
        CQorVertexArray strokes = rowStrokes(local, seed, work, dashed);
        if (strokes.len() > 0) {
            strokes.transformBy(frame);
            strokes.transformBy(s.mtx);
            out.append(strokes);
            ++st.rowsOut;
        }
        if (s.turned)
            seed.transformBy(s.rotBack);
    }
    st.budgetRanOut = n >= upLimit;
}

} // namespace

namespace QOR {

CQorArrayTempl<CQorVertexArray> hatchRegion2(CQorArrayTempl<CQorVertexArray> regions,
                                             const CQorMatrix3d& mtx, const CHatchProp& prop,
                                             CQorArrayTempl<HatchFamilyStats>* stats) {
    Regions out;
    Table table;
    if (hatchIsUserName(prop.name)) {
        table = userTable();
        if (prop.cross) {
            const CHatchProp second(prop.name, g_ang(prop.angle + kPi / 2.0), prop.scale, false);
            out = hatchRegion2(regions, mtx, second, stats);
        }
    } else if (CQorApp* app = qorAppPtr()) {
        app->hatchPatternGet(prop.name, table);
    }

    g_vll_orient(regions, CQorVector3d::kZAxis);
    const CQorMatrix3d inv = mtx.inverse();
    for (int c = 0; c < regions.len(); ++c)
        regions[c].transformBy(inv);
    if (regions.len() == 0)
        regions.append(CQorVertexArray());

    Setup s;
    s.prop = prop;
    s.mtx = mtx;
    const CQorPoint3dArray ext = g_vl_extmax(regions[0], 0.0);
    s.diag = ext[0].distanceTo(ext[1]);
    // Again, because mtx may have mirrored.
    g_vll_orient(regions, CQorVector3d::kZAxis);
    s.dot = styleDotLength();
    s.rot.setToRotation(prop.angle, CQorVector3d::kZAxis, CQorPoint3d::kOrigin);
    s.rotBack.setToRotation(-prop.angle, CQorVector3d::kZAxis, CQorPoint3d::kOrigin);
    s.turned = prop.angle != 0.0;
    s.gravel = prop.name == L"GRAVEL";

    for (int f = 0; f < table.len(); ++f) {
        HatchFamilyStats st;
        hatchFamily(table[f], regions, s, out, st);
        if (stats)
            stats->append(st);
    }
    return out;
}

} // namespace QOR

CQorArrayTempl<CQorVertexArray> qor_gdx_image_reg_hatch2(CQorArrayTempl<CQorVertexArray> regions,
                                                         const CQorMatrix3d& mtx,
                                                         const QOR::CHatchProp& prop) {
    return QOR::hatchRegion2(std::move(regions), mtx, prop, nullptr);
}
