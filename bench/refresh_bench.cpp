// The painter into the native metafile surface against a raw loop of the same
// number of move and line calls on that surface.
#include "bench_documents.h"
#include "drawing/emf_surface_p.h"
#include "drawing/item_painter_p.h"

#include <benchmark/benchmark.h>

namespace {

using bench::mixedDoc;

void BM_PaintMixedToEmf(benchmark::State& state) {
    const CQorGDX doc = mixedDoc(static_cast<int>(state.range(0)));
    size_t lines = 0;
    for (auto _ : state) {
        CQorGDX gdx = doc;
        QOR::CQorEmfSurface emf;
        QOR::CQorItemPainter(emf, QOR::CQorPaintPolicy::metafile()).paint(gdx, 1000, 1000);
        lines = static_cast<size_t>(emf.recordCount());
        benchmark::DoNotOptimize(emf.bytes());
    }
    state.counters["records"] = static_cast<double>(lines);
}
BENCHMARK(BM_PaintMixedToEmf)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

// The device alone: as many records as the painter gives for a mixed document of
// the same number of items, written as move and line pairs.
void BM_RawMoveLineToEmf(benchmark::State& state) {
    int records = 0;
    {
        CQorGDX gdx = mixedDoc(static_cast<int>(state.range(0)));
        QOR::CQorEmfSurface emf;
        QOR::CQorItemPainter(emf, QOR::CQorPaintPolicy::metafile()).paint(gdx, 1000, 1000);
        records = emf.recordCount();
    }
    const int pairs = records / 2;
    for (auto _ : state) {
        QOR::CQorEmfSurface emf;
        for (int k = 0; k < pairs; ++k) {
            emf.moveTo(k % 1000, k / 1000);
            emf.lineTo(k % 1000 + 5, k / 1000 + 3);
        }
        benchmark::DoNotOptimize(emf.bytes());
    }
    state.counters["records"] = static_cast<double>(2 * pairs);
}
BENCHMARK(BM_RawMoveLineToEmf)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

} // namespace
