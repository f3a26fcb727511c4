#include "displaylist/gdx.h"

#include <benchmark/benchmark.h>

namespace {

// Exposes the rebuild of the extents cache.
struct BenchGdx : CQorGDX {
    BenchGdx() : CQorGDX(CQorColor(), CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d()) {}
    using CQorGDX::refresh_ext;
};

CQorVertexArray segmentAt(int i) {
    CQorVertexArray vl;
    vl.append(CQorVertex(CQorPoint3d(i, i % 97, 0), CQorPoint3d(i + 1.0, i % 89, 0), 0.0));
    return vl;
}

// n line items; every tenth one is a region below them; groups {i / 1000, i}.
void fill(BenchGdx& gdx, int n) {
    CQorColor color(1);
    CQorArrayTempl<int> stack;
    stack[1] = 0;
    for (int i = 0; i < n; ++i) {
        stack[0] = i / 1000;
        stack[1] = i;
        gdx.imageVl(stack, 0, segmentAt(i), color, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                    CQorPoint3d());
    }
}

void BM_GdxAddLineItems(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    for (auto _ : state) {
        BenchGdx gdx;
        fill(gdx, n);
        benchmark::DoNotOptimize(gdx.lenGet());
    }
    state.SetItemsProcessed(state.iterations() * n);
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxAddLineItems)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

void BM_GdxRebuildExtents(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    BenchGdx gdx;
    fill(gdx, n);
    for (auto _ : state)
        gdx.refresh_ext();
    state.SetItemsProcessed(state.iterations() * n);
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxRebuildExtents)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void BM_GdxSortAlreadySorted(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    BenchGdx gdx;
    fill(gdx, n);
    for (auto _ : state)
        gdx.displListSort();
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxSortAlreadySorted)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

// Regions appended after lines must all move below them: a full reordering copy.
void BM_GdxSortLinesThenRegions(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    BenchGdx base;
    fill(base, n / 2);
    CQorArrayTempl<CQorVertexArray> regions;
    regions.append(segmentAt(0));
    for (int i = 0; i < n / 2; ++i)
        base.imageReg(CQorArrayTempl<int>(), 0, regions, CQorColor(2), CQorMatrix3d(),
                      CQorArrayTempl<double>(), 1.0, 1, CQorColor(), QOR::CHatchProp(),
                      CQorPoint3d());
    for (auto _ : state) {
        state.PauseTiming();
        BenchGdx gdx = base;
        state.ResumeTiming();
        gdx.displListSort();
    }
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxSortLinesThenRegions)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void BM_GdxPick(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    BenchGdx gdx;
    fill(gdx, n);
    for (auto _ : state)
        benchmark::DoNotOptimize(gdx.imageItemGet(CQorPoint3d(n / 2.0, 3, 0)));
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxPick)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

void BM_GdxPropSetGroupOfThousand(benchmark::State& state) {
    const int n = static_cast<int>(state.range(0));
    BenchGdx gdx;
    fill(gdx, n);
    CQorArrayTempl<int> group;
    group[0] = 7; // items 7000 to 7999
    unsigned long code = GDX_PROP_HIDE;
    for (auto _ : state) {
        benchmark::DoNotOptimize(gdx.propSet(group, code));
        code = code == GDX_PROP_HIDE ? GDX_PROP_SHOW : GDX_PROP_HIDE;
    }
    state.SetComplexityN(n);
}
BENCHMARK(BM_GdxPropSetGroupOfThousand)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

} // namespace
