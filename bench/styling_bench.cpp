#include "foundation/geometry.h"
#include "foundation/records/hatch_prop.h"
#include "styling/hatch.h"
#include "styling/hatch_density_guard.h"
#include "styling/line_pattern.h"
#include "styling/split.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using QOR::kPi;

CQorArrayTempl<CQorVertexArray> square1000() {
    CQorPoint3dArray p;
    p.append(CQorPoint3d(0, 0, 0));
    p.append(CQorPoint3d(1000, 0, 0));
    p.append(CQorPoint3d(1000, 1000, 0));
    p.append(CQorPoint3d(0, 1000, 0));
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(vl);
    return reg;
}

// Hatches the square with the default host's pattern at scale state.range(0).
void hatchSquare(benchmark::State& state, const wchar_t* name) {
    const CQorArrayTempl<CQorVertexArray> reg = square1000();
    const QOR::CHatchProp prop(name, 0.0, static_cast<double>(state.range(0)), false);
    long long rows = 0;
    long long pieces = 0;
    for (auto _ : state) {
        const CQorArrayTempl<CQorVertexArray> out =
            qor_gdx_image_reg_hatch2(reg, CQorMatrix3d::kIdentity, prop);
        rows += out.len();
        for (int i = 0; i < out.len(); ++i)
            pieces += out[i].len();
        benchmark::DoNotOptimize(out.len());
    }
    state.counters["rows/s"] =
        benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kIsRate);
    state.counters["rows"] =
        benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kAvgIterations);
    state.counters["pieces"] =
        benchmark::Counter(static_cast<double>(pieces), benchmark::Counter::kAvgIterations);
}

void BM_HatchSquareLines(benchmark::State& state) {
    hatchSquare(state, L"ANSI31");
}
BENCHMARK(BM_HatchSquareLines)->Arg(10)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);

void BM_HatchSquareDashes(benchmark::State& state) {
    hatchSquare(state, L"ANSI33");
}
BENCHMARK(BM_HatchSquareDashes)->Arg(10)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);

void BM_HatchSquareDots(benchmark::State& state) {
    hatchSquare(state, L"DOTS");
}
BENCHMARK(BM_HatchSquareDots)->Arg(20)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);

// A closed polygon of n vertices on a wavy circle.
CQorVertexArray wavy(int n, double r) {
    CQorPoint3dArray p;
    p.allocate(n);
    for (int i = 0; i < n; ++i) {
        const double a = 2.0 * kPi * i / n;
        const double rr = r * (1.0 + 0.05 * std::sin(7.0 * a));
        p.append(CQorPoint3d(rr * std::cos(a), rr * std::sin(a), 0.0));
    }
    CQorVertexArray vl;
    vl.fromPoints(p, true);
    return vl;
}

void BM_PatternTest10000(benchmark::State& state) {
    CQorArrayTempl<CQorVertexArray> reg;
    reg.append(wavy(10000, 500.0));
    const QOR::CHatchProp prop(L"ANSI37", 0.3, 20.0, false);
    for (auto _ : state)
        benchmark::DoNotOptimize(qor_gdx_pattern_test(reg, prop, CQorMatrix3d::kIdentity));
}
BENCHMARK(BM_PatternTest10000)->Unit(benchmark::kMillisecond);

// An open polyline of 10,000 vertices, every fourth an arc, each about 3 long.
CQorVertexArray polyline10000() {
    CQorVertexArray vl;
    CQorPoint3d at(0, 0, 0);
    for (int i = 0; i < 10000; ++i) {
        const double a = 0.3 * std::sin(0.01 * i);
        const CQorPoint3d next(at.x + 3.0 * std::cos(a), at.y + 3.0 * std::sin(a), 0.0);
        vl.append(CQorVertex(at, next, i % 4 == 0 ? 0.2 : 0.0));
        at = next;
    }
    return vl;
}

void BM_VlMeasure10000(benchmark::State& state) {
    const CQorVertexArray vl = polyline10000();
    CQorArrayTempl<double> pattern;
    pattern.append(1.0).append(-0.5).append(0.0).append(-0.5);
    const int mode = static_cast<int>(state.range(0));
    long long pieces = 0;
    for (auto _ : state) {
        CQorVertexArray work = vl;
        qor_gdx_image_vl_measure(work, pattern, mode);
        pieces += work.len();
        benchmark::DoNotOptimize(work.len());
    }
    state.counters["pieces"] =
        benchmark::Counter(static_cast<double>(pieces), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_VlMeasure10000)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void BM_VlSplit10000(benchmark::State& state) {
    const CQorVertexArray vl = polyline10000();
    for (auto _ : state)
        benchmark::DoNotOptimize(qor_gdx_image_vl_split(vl).len());
}
BENCHMARK(BM_VlSplit10000)->Unit(benchmark::kMillisecond);

} // namespace
