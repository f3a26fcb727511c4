// Data tree: lookups by path, and writing and reading the data text format.
#include "foundation/data_tree.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {
// A tree of `dirs` directories with 20 values each: reals, ints and a vertex array.
CQorDataItem makeTree(int dirs) {
    CQorDataItem root(1);
    CQorVertexArray vl;
    for (int i = 0; i < 16; ++i)
        vl.append(CQorVertex(CQorPoint3d(i, 0, 0), CQorPoint3d(i + 1, 0.5, 0), i % 3 ? 0.0 : 0.25));
    for (int d = 0; d < dirs; ++d) {
        for (int v = 0; v < 20; ++v) {
            const CQorDataKey k(5003, d, 5005, v % 2 ? L"R" : L"I", 5003, v, 0);
            if (v == 0)
                QOR::dataItemSetChain(&root, &k, QOR::mkResbuf(vl));
            else if (v % 2)
                dataItemSet(&root, &k, v / 3.0);
            else
                dataItemSet(&root, &k, v);
        }
    }
    return root;
}
} // namespace

static void BM_DataItemGetByPath(benchmark::State& state) {
    const CQorDataItem root = makeTree(static_cast<int>(state.range(0)));
    const CQorDataKey k(5003, static_cast<int>(state.range(0)) / 2, 5005, L"R", 5003, 7, 0);
    double v = 0;
    for (auto _ : state) {
        root.get(v, &k);
        benchmark::DoNotOptimize(v);
    }
}
BENCHMARK(BM_DataItemGetByPath)->Arg(10)->Arg(1000);

static void BM_DataTextWrite(benchmark::State& state) {
    const CQorDataItem root = makeTree(static_cast<int>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = QOR::dataTextWrite(root);
        bytes = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(static_cast<long long>(state.iterations() * bytes));
}
BENCHMARK(BM_DataTextWrite)->Arg(100);

static void BM_DataTextRead(benchmark::State& state) {
    const std::string text = QOR::dataTextWrite(makeTree(static_cast<int>(state.range(0))));
    CQorString error;
    for (auto _ : state) {
        CQorDataItem root(1);
        QOR::dataTextRead(text.data(), text.size(), root, error);
        benchmark::DoNotOptimize(root.getDir());
    }
    state.SetBytesProcessed(static_cast<long long>(state.iterations() * text.size()));
}
BENCHMARK(BM_DataTextRead)->Arg(100);
