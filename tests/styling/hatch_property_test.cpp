// Seeded random regions hatched with real patterns: the default host's own and
// the public pattern files under tests/data/hatch.
#include "styling/hatch.h"

#include "host/default_app.h"
#include "styling_test_util.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

using QOR::kPi;
using Rows = CQorArrayTempl<CQorVertexArray>;
using Table = CQorArrayTempl<CQorArrayTempl<double>>;

// Uniform in [0, 1) from the raw output of the engine, the same on every library.
double unit(std::mt19937& g) {
    return static_cast<double>(g()) / 4294967296.0;
}
double between(std::mt19937& g, double lo, double hi) {
    return lo + (hi - lo) * unit(g);
}

CQorVertexArray ring(const std::vector<CQorPoint3d>& pts, bool reversed) {
    CQorPoint3dArray a;
    for (const auto& p : pts)
        a.append(p);
    CQorVertexArray vl;
    vl.fromPoints(a, true);
    if (reversed)
        vl.revert();
    return vl;
}

// A convex polygon (points on a circle) or a star-shaped concave one, about a
// centre near the origin, with up to two convex holes near the centre.
Rows randomRegion(std::mt19937& g, bool concave, int holes) {
    const double radius = between(g, 20.0, 50.0);
    const CQorPoint3d c(between(g, -20, 20), between(g, -20, 20), 0.0);
    const int n = concave ? 6 + static_cast<int>(unit(g) * 14) : 3 + static_cast<int>(unit(g) * 12);
    std::vector<double> angles;
    for (int i = 0; i < n; ++i)
        angles.push_back(concave ? (i + between(g, 0.1, 0.9)) * 2.0 * kPi / n
                                 : between(g, 0.0, 2.0 * kPi));
    std::sort(angles.begin(), angles.end());
    std::vector<CQorPoint3d> pts;
    for (int i = 0; i < n; ++i) {
        const double r = concave && i % 2 == 1 ? radius * between(g, 0.4, 0.7) : radius;
        pts.push_back(CQorPoint3d(c.x + r * std::cos(angles[i]), c.y + r * std::sin(angles[i]), 0));
    }
    Rows reg;
    reg.append(ring(pts, unit(g) < 0.5));
    // For the convex polygon the centre may lie near an edge: only a polygon of
    // spread-out points gets holes, with the inner radius measured.
    double inner = radius;
    const CQorVertexArray& outer = reg[0];
    for (int i = 0; i < outer.len(); ++i)
        inner = std::min(inner, outer[i].lotp(c).distanceTo(c));
    for (int h = 0; h < holes && inner > 4.0; ++h) {
        const double side = h == 0 ? -1.0 : 1.0;
        const CQorPoint3d hc(c.x + side * 0.35 * inner, c.y, 0.0);
        const double hr = 0.3 * inner;
        std::vector<CQorPoint3d> hp;
        const int m = 3 + static_cast<int>(unit(g) * 6);
        const double turn = between(g, 0, 2 * kPi);
        for (int k = 0; k < m; ++k) {
            const double a = turn + k * 2.0 * kPi / m;
            hp.push_back(CQorPoint3d(hc.x + hr * std::cos(a), hc.y + hr * std::sin(a), 0));
        }
        reg.append(ring(hp, unit(g) < 0.5));
    }
    return reg;
}

double boundaryDistance(const Rows& reg, const CQorPoint3d& p) {
    double best = 1e300;
    for (int c = 0; c < reg.len(); ++c)
        for (int i = 0; i < reg[c].len(); ++i)
            best = std::min(best, reg[c][i].lotp(p).distanceTo(p));
    return best;
}

struct Source {
    std::string name;
    Table table;
};

// The scale at which the densest family of a table has rows `size / 30` apart.
double scaleFor(const Table& t, double size) {
    double least = 1e300;
    for (int f = 0; f < t.len(); ++f)
        if (t[f].len() > 4 && t[f][4] != 0.0)
            least = std::min(least, std::fabs(t[f][4]));
    return least < 1e300 ? size / 30.0 / least : 1.0;
}

struct Totals {
    long long rows = 0;
    long long pieces = 0;
    long long calls = 0;
    double worstAscentShare = 0.0;
    double worstDescentShare = 0.0;
    long long holeViolations = 0;
    long long familiesMissed = 0;
};

// Hatches one region with one pattern and checks every piece against the region
// and every row of a family against the family's direction and row distance.
void checkOne(const Source& src, const Rows& reg, double scale, double angle, Totals& totals) {
    CQorArrayTempl<QOR::HatchFamilyStats> stats;
    const std::wstring wname(src.name.begin(), src.name.end());
    const QOR::CHatchProp prop(wname.c_str(), angle, scale, false);
    const Rows rows = QOR::hatchRegion2(reg, CQorMatrix3d(), prop, &stats);
    ++totals.calls;
    ASSERT_EQ(stats.len(), src.table.len()) << src.name;

    double size = 0.0;
    {
        CQorPoint3d lo;
        CQorPoint3d hi;
        reg[0].extents(lo, hi);
        size = lo.distanceTo(hi);
    }
    const double tol = 1e-9 * (size + 1.0) * 100.0;
    const CQorArrayTempl<CQorVertexArray> outerOnly = [&] {
        CQorArrayTempl<CQorVertexArray> o;
        o.append(reg[0]);
        return o;
    }();

    int at = 0;
    for (int f = 0; f < stats.len(); ++f) {
        const QOR::HatchFamilyStats& st = stats[f];
        const CQorArrayTempl<double>& line = src.table[f];
        EXPECT_LE(st.descentSteps, st.limit) << src.name << " family " << f;
        EXPECT_LE(st.ascentSteps, 3 * st.limit) << src.name << " family " << f;
        if (st.rowsOut > 0) {
            EXPECT_FALSE(st.budgetRanOut) << src.name << " family " << f << " ran out of budget";
        }
        if (st.limit > 0 && st.budgetRanOut && getenv("QOR_HATCH_DEBUG"))
            std::printf("%s family %d: rows %d limit %lld descent %lld ascent %lld out %d\n",
                        src.name.c_str(), f, st.rows, st.limit, st.descentSteps, st.ascentSteps,
                        st.rowsOut);
        if (st.limit > 0 && st.budgetRanOut && getenv("QOR_HATCH_DEBUG")) {
            std::printf("angle %.17g scale %.17g\n", angle, scale);
            for (int c = 0; c < reg.len(); ++c)
                for (int i = 0; i < reg[c].len(); ++i)
                    std::printf("  %d: %.17g %.17g\n", c, reg[c][i].m_start.x, reg[c][i].m_start.y);
        }
        if (st.limit > 0 && st.rowsOut == 0)
            ++totals.familiesMissed;
        if (st.limit > 0) {
            totals.worstAscentShare = std::max(
                totals.worstAscentShare, static_cast<double>(st.ascentSteps) / (3.0 * st.limit));
            totals.worstDescentShare =
                std::max(totals.worstDescentShare, static_cast<double>(st.descentSteps) / st.limit);
        }
        const double dir = line[0] * kPi / 180.0 + angle;
        const CQorVector3d along = QOR::polar(dir, 1.0);
        const CQorVector3d across = QOR::polar(dir + kPi / 2.0, 1.0);
        const double frameA = line[0] * kPi / 180.0;
        const CQorPoint3d base(line[1] * scale, line[2] * scale, 0.0);
        const double baseAcross = (base - CQorPoint3d()).dot(QOR::polar(frameA + kPi / 2.0, 1.0));
        const double dist = std::fabs(line[4] * scale);
        double before = 0.0;
        for (int r = 0; r < st.rowsOut; ++r, ++at) {
            ASSERT_LT(at, rows.len());
            const CQorVertexArray& row = rows[at];
            ASSERT_GT(row.len(), 0);
            const double offset = (row[0].m_start - CQorPoint3d()).dot(across);
            const double k = (offset - baseAcross) / dist;
            EXPECT_NEAR(k, std::round(k), 1e-6)
                << src.name << " family " << f << ": row not a whole number of distances";
            if (r > 0) {
                EXPECT_GT((offset - before) / dist, 0.5) << src.name << " rows go up";
            }
            before = offset;
            for (int i = 0; i < row.len(); ++i) {
                const CQorVertex& v = row[i];
                ++totals.pieces;
                EXPECT_NEAR((v.m_start - CQorPoint3d()).dot(across), offset, tol) << src.name;
                EXPECT_NEAR((v.m_end - CQorPoint3d()).dot(across), offset, tol) << src.name;
                EXPECT_NEAR(std::fabs((v.m_end - v.m_start).dot(along)),
                            v.m_start.distanceTo(v.m_end), tol);
                for (const CQorPoint3d& p : {v.m_start, v.m_end, v.mid()}) {
                    if (QOR::g_vll_pt_inside(outerOnly, p) < 0) {
                        EXPECT_LT(boundaryDistance(reg, p), tol)
                            << src.name << " family " << f << " piece outside the region at ("
                            << p.x << ", " << p.y << ")";
                    }
                    if (QOR::g_vll_pt_inside(reg, p) < 0 && boundaryDistance(reg, p) >= tol)
                        ++totals.holeViolations;
                }
            }
        }
        totals.rows += st.rowsOut;
    }
    EXPECT_EQ(at, rows.len());
}

std::vector<Source> sourcesOf(QOR::CQorDefaultApp& app) {
    std::vector<Source> out;
    QOR::CHatchPatternTable& t = app.patterns();
    for (int i = 0; i < t.count(); ++i) {
        Source s;
        const CQorString& n = t.at(i).name;
        for (const wchar_t* w = n.c_str(); *w; ++w)
            s.name.push_back(static_cast<char>(*w));
        s.table = t.at(i).lines;
        out.push_back(s);
    }
    return out;
}

class HatchProperty : public ::testing::Test {
protected:
    void SetUp() override {
        const char* files[] = {
            "qcad/metric/acad_iso02w100.pat", "qcad/metric/ansi31.pat",
            "qcad/metric/ansi37.pat",         "qcad/metric/ar-b816.pat",
            "qcad/metric/ar-conc.pat",        "qcad/metric/ar-hbone.pat",
            "qcad/metric/brick.pat",          "qcad/metric/escher.pat",
            "qcad/metric/grass.pat",          "qcad/metric/hex.pat",
            "qcad/metric/insul.pat",          "qcad/metric/jis_rc_10.pat",
            "qcad/metric/jis_wood.pat",       "FreeCAD/FCPAT.pat",
        };
        for (const char* f : files) {
            const std::string path = std::string(QOR_TEST_DATA_DIR) + "/hatch/" + f;
            ASSERT_GE(m_app.patternFileAdd(std::wstring(path.begin(), path.end()).c_str()), 1)
                << path;
        }
        m_before = qorAppSet(&m_app);
    }
    void TearDown() override { qorAppSet(m_before); }

    QOR::CQorDefaultApp m_app;
    CQorApp* m_before = nullptr;
};

void runAll(const std::vector<Source>& sources, int regionsPerPattern, bool withHoles,
            const char* label) {
    std::mt19937 g(20261122u);
    Totals totals;
    for (const Source& src : sources) {
        for (int k = 0; k < regionsPerPattern; ++k) {
            const bool concave = k % 2 == 1;
            const Rows reg = randomRegion(g, concave, withHoles ? 1 + k % 2 : 0);
            CQorPoint3d lo;
            CQorPoint3d hi;
            reg[0].extents(lo, hi);
            const double angle = between(g, 0.0, 2.0 * kPi);
            checkOne(src, reg, scaleFor(src.table, lo.distanceTo(hi)), angle, totals);
            if (::testing::Test::HasFatalFailure())
                return;
        }
    }
    std::printf(
        "[ %s ] %lld calls, %lld rows, %lld pieces; worst share of the ascent budget "
        "%.3f, of the descent budget %.3f; points in holes %lld; families that found no row %lld\n",
        label, totals.calls, totals.rows, totals.pieces, totals.worstAscentShare,
        totals.worstDescentShare, totals.holeViolations, totals.familiesMissed);
    EXPECT_GT(totals.rows, 0);
    EXPECT_EQ(totals.holeViolations, 0);
}

} // namespace

TEST_F(HatchProperty, RealPatternsOnConvexAndConcaveRegionsStayInsideAndKeepTheirRows) {
    runAll(sourcesOf(m_app), 4, false, "no holes");
}

TEST_F(HatchProperty, RealPatternsOnRegionsWithHolesStayOutOfTheHoles) {
    runAll(sourcesOf(m_app), 4, true, "holes");
}
