#include "foundation/geometry.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using QOR::kPi;

// A closed polygon of n vertices on a slightly wavy circle.
CQorVertexArray wavyCircle(double cx, double cy, double r, int n, double wave) {
    CQorPoint3dArray p;
    p.allocate(n);
    for (int i = 0; i < n; ++i) {
        const double a = 2.0 * kPi * i / n;
        const double rr = r * (1.0 + wave * std::sin(7.0 * a));
        p.append(CQorPoint3d(cx + rr * std::cos(a), cy + rr * std::sin(a), 0.0));
    }
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

// Outer contour of 1,000 vertices and 10 holes (arcs) along the x axis.
CQorArrayTempl<CQorVertexArray> regionWithHoles() {
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(wavyCircle(0.0, 0.0, 1000.0, 1000, 0.05));
    for (int h = 0; h < 10; ++h) {
        const double cx = -675.0 + 150.0 * h;
        CQorVertexArray hole;
        hole.append(
            CQorVertex(CQorPoint3d(cx + 40.0, 0.0, 0.0), CQorPoint3d(cx - 40.0, 0.0, 0.0), -1.0));
        hole.append(
            CQorVertex(CQorPoint3d(cx - 40.0, 0.0, 0.0), CQorPoint3d(cx + 40.0, 0.0, 0.0), -1.0));
        reg.append(hole);
    }
    return reg;
}

void BM_PunchRegRowThroughRegionWith1000VerticesAnd10Holes(benchmark::State& state) {
    const CQorArrayTempl<CQorVertexArray> reg = regionWithHoles();
    const CQorVertexArray row(
        CQorVertex(CQorPoint3d(-1200.0, 10.0, 0.0), CQorPoint3d(1200.0, 10.0, 0.0)));
    int pieces = 0;
    for (auto _ : state) {
        const CQorArrayTempl<CQorVertexArray> r = QOR::g_vl_punch_reg(row, reg, true);
        pieces = r.len();
        benchmark::DoNotOptimize(r.data());
    }
    state.counters["pieces"] = pieces;
}
BENCHMARK(BM_PunchRegRowThroughRegionWith1000VerticesAnd10Holes)->Unit(benchmark::kMicrosecond);

// A scan-line fill of the same region: one punch per row over its height.
void BM_PunchRegScanFill200Rows(benchmark::State& state) {
    const CQorArrayTempl<CQorVertexArray> reg = regionWithHoles();
    for (auto _ : state) {
        int pieces = 0;
        for (int y = -1000; y < 1000; y += 10) {
            const CQorVertexArray row(
                CQorVertex(CQorPoint3d(-1200.0, y + 0.5, 0.0), CQorPoint3d(1200.0, y + 0.5, 0.0)));
            pieces += QOR::g_vl_punch_reg(row, reg, true).len();
        }
        benchmark::DoNotOptimize(pieces);
    }
}
BENCHMARK(BM_PunchRegScanFill200Rows)->Unit(benchmark::kMillisecond);

// A closed sawtooth of 10,000 vertices: a long row through it crosses every tooth.
CQorVertexArray sawtooth(int n) {
    CQorPoint3dArray p;
    p.allocate(n);
    const int teeth = n - 2;
    for (int i = 0; i < teeth; ++i)
        p.append(CQorPoint3d(double(i), i % 2 ? 1.0 : -1.0, 0.0));
    p.append(CQorPoint3d(double(teeth), -5.0, 0.0));
    p.append(CQorPoint3d(0.0, -5.0, 0.0));
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

void BM_IntersectLongRowWith10000VertexContourManyCrossings(benchmark::State& state) {
    const CQorVertexArray contour = sawtooth(10000);
    const CQorVertexArray row(
        CQorVertex(CQorPoint3d(-10.0, 0.25, 0.0), CQorPoint3d(20000.0, 0.25, 0.0)));
    int crossings = 0;
    for (auto _ : state) {
        CQorPoint3dArray out;
        row.intersectWith(out, contour, 3);
        crossings = out.len();
        benchmark::DoNotOptimize(out.data());
    }
    state.counters["crossings"] = crossings;
}
BENCHMARK(BM_IntersectLongRowWith10000VertexContourManyCrossings)->Unit(benchmark::kMicrosecond);

void BM_IntersectLongRowWith10000VertexContourTwoCrossings(benchmark::State& state) {
    const CQorVertexArray contour = wavyCircle(0.0, 0.0, 1000.0, 10000, 0.05);
    const CQorVertexArray row(
        CQorVertex(CQorPoint3d(-5000.0, 3.0, 0.0), CQorPoint3d(5000.0, 3.0, 0.0)));
    int crossings = 0;
    for (auto _ : state) {
        CQorPoint3dArray out;
        row.intersectWith(out, contour, 3);
        crossings = out.len();
        benchmark::DoNotOptimize(out.data());
    }
    state.counters["crossings"] = crossings;
}
BENCHMARK(BM_IntersectLongRowWith10000VertexContourTwoCrossings)->Unit(benchmark::kMicrosecond);

void BM_IntersectModeZeroFirstCrossingOnly(benchmark::State& state) {
    const CQorVertexArray contour = sawtooth(10000);
    const CQorVertexArray row(
        CQorVertex(CQorPoint3d(-10.0, 0.25, 0.0), CQorPoint3d(20000.0, 0.25, 0.0)));
    for (auto _ : state) {
        CQorPoint3dArray out;
        benchmark::DoNotOptimize(row.intersectWith(out, contour, 0));
    }
}
BENCHMARK(BM_IntersectModeZeroFirstCrossingOnly)->Unit(benchmark::kMicrosecond);

} // namespace
