#include "foundation/base/qor_array_templ.h"
#include "foundation/base/qor_map_templ.h"
#include "foundation/base/qor_string.h"

#include <benchmark/benchmark.h>

static void BM_ArrayAppendMillionDoubles(benchmark::State& state) {
    for (auto _ : state) {
        CQorArrayTempl<double> a;
        for (int i = 0; i < 1000000; ++i)
            a.append(i * 0.5);
        benchmark::DoNotOptimize(a.data());
    }
    state.SetItemsProcessed(state.iterations() * 1000000);
}
BENCHMARK(BM_ArrayAppendMillionDoubles)->Unit(benchmark::kMillisecond);

static void BM_ArrayGrowByIndexMillionDoubles(benchmark::State& state) {
    for (auto _ : state) {
        CQorArrayTempl<double> a;
        for (int i = 0; i < 1000000; ++i)
            a[i] = i * 0.5;
        benchmark::DoNotOptimize(a.data());
    }
    state.SetItemsProcessed(state.iterations() * 1000000);
}
BENCHMARK(BM_ArrayGrowByIndexMillionDoubles)->Unit(benchmark::kMillisecond);

static void BM_MapInsertTenThousandInts(benchmark::State& state) {
    for (auto _ : state) {
        CQorMapTempl<int, int> m;
        for (int i = 0; i < 10000; ++i)
            m.setAt((i * 7919) % 10007, i);
        benchmark::DoNotOptimize(m.len());
    }
}
BENCHMARK(BM_MapInsertTenThousandInts)->Unit(benchmark::kMicrosecond);

static void BM_StringFormat(benchmark::State& state) {
    CQorString s;
    for (auto _ : state) {
        s.format(L"<a href=\"%s\">%s</a> PARM%d %.3f", L"file.chm", L"Hilfe", 3, 1.25);
        benchmark::DoNotOptimize(s.c_str());
    }
}
BENCHMARK(BM_StringFormat);
