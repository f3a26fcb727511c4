// The painter into the native metafile surface against a raw loop of the same
// number of move and line calls on that surface.
#include "displaylist/emf_surface.h"
#include "displaylist/item_painter.h"

#include <benchmark/benchmark.h>

namespace {

CQorArrayTempl<int> one(int v) {
    CQorArrayTempl<int> p;
    p.append(v);
    return p;
}

// Lines, arcs under a dash pattern and filled regions, in turn.
CQorGDX mixedDoc(int count) {
    CQorColor back;
    back.setOleColor(0xFFFFFF);
    CQorGDX gdx(back, CQorMatrix3d(), 1.0, 0, CQorPoint3d(), CQorPoint3d());
    CQorColor color;
    color.setColorIndex(1);
    CQorArrayTempl<double> dashes;
    dashes.append(2.0);
    dashes.append(-1.0);
    for (int k = 0; k < count; ++k) {
        const double x = (k % 100) * 10.0, y = (k / 100 % 100) * 10.0;
        CQorVertexArray vl;
        switch (k % 3) {
        case 0:
            vl.append(CQorVertex(CQorPoint3d(x, y, 0), CQorPoint3d(x + 8, y + 3, 0)));
            gdx.imageVl(one(k), 0, vl, color, CQorMatrix3d(), CQorArrayTempl<double>(), 1.0, 1,
                        CQorPoint3d());
            break;
        case 1:
            vl.append(CQorVertex(CQorPoint3d(x, y, 0), CQorPoint3d(x + 8, y, 0), 0.5));
            gdx.imageVl(one(k), 0, vl, color, CQorMatrix3d(), dashes, 1.0, 1, CQorPoint3d());
            break;
        default: {
            CQorPoint3dArray pts;
            pts.append(CQorPoint3d(x, y, 0));
            pts.append(CQorPoint3d(x + 6, y, 0));
            pts.append(CQorPoint3d(x + 6, y + 4, 0));
            vl.fromPoints(pts, true);
            CQorArrayTempl<CQorVertexArray> reg;
            reg.append(vl);
            gdx.imageReg(one(k), GDX_FLAG_FILL | GDX_FLAG_OUTLINE, reg, color, CQorMatrix3d(),
                         CQorArrayTempl<double>(), 1.0, 1, color, QOR::CHatchProp(), CQorPoint3d());
        }
        }
    }
    return gdx;
}

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

// The device alone: about as many records as the painter gives for 10,000 and
// 100,000 mixed items (see its records counter), as move and line pairs.
void BM_RawMoveLineToEmf(benchmark::State& state) {
    const int pairs = static_cast<int>(state.range(0)) / 2;
    for (auto _ : state) {
        QOR::CQorEmfSurface emf;
        for (int k = 0; k < pairs; ++k) {
            emf.moveTo(k % 1000, k / 1000);
            emf.lineTo(k % 1000 + 5, k / 1000 + 3);
        }
        benchmark::DoNotOptimize(emf.bytes());
    }
}
BENCHMARK(BM_RawMoveLineToEmf)->Arg(171000)->Arg(1710000)->Unit(benchmark::kMillisecond);

} // namespace
