#include "foundation/application/model_services.h"
#include "foundation/data/data_item.h"

#include <benchmark/benchmark.h>

namespace {

// The I beam contour with its four root fillets.
void BM_OutlineIBeam(benchmark::State& state) {
    CQorArrayTempl<double> p;
    p.append(200.0).append(100.0).append(5.6).append(8.5).append(12.0);
    for (auto _ : state) {
        CQorVertexArray vl = QOR::g_outline(QOR::kOutlineIBeam, CQorVector3d(), p);
        benchmark::DoNotOptimize(vl.len());
    }
}
BENCHMARK(BM_OutlineIBeam);

// The whole built-in outline directory.
void BM_OutlineInit(benchmark::State& state) {
    for (auto _ : state) {
        CQorDataItem dir(1);
        benchmark::DoNotOptimize(qorOutlineInit(&dir));
    }
}
BENCHMARK(BM_OutlineInit);

// The drill of the drill image: build, evaluate and project in the oblique view.
void BM_DrillProject(benchmark::State& state) {
    CQorVector3d x(1, 1, 0), z(1, -1, 1);
    x.normalize();
    z.normalize();
    CQorMatrix3d view;
    view.setCoordSystem(CQorPoint3d::kOrigin, x, z * x, z);
    for (auto _ : state) {
        CQor_Solid s;
        s.setDrill(10.0, 20.0, 118.0);
        s.solid();
        s.evaluate(1);
        CQorArrayTempl<CQorVertexArrayEx> first, second;
        s.project(view, false, first, second, 1);
        benchmark::DoNotOptimize(first.len());
    }
}
BENCHMARK(BM_DrillProject);

} // namespace
