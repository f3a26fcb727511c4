#include "foundation/records/length_text.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::vector<double> values() {
    std::mt19937_64 rng(5);
    std::uniform_real_distribution<double> d(-10000.0, 10000.0);
    std::vector<double> v(1000);
    for (double& x : v)
        x = d(rng);
    return v;
}

} // namespace

// Writes 1000 lengths in the format given by the argument, precision 4.
static void BM_QorRtoS(benchmark::State& state) {
    const std::vector<double> v = values();
    const auto fmt = static_cast<Qor::lFormat>(state.range(0));
    wchar_t buf[kQorLengthTextSize];
    for (auto _ : state) {
        for (double x : v)
            benchmark::DoNotOptimize(qorRtoS(buf, x, fmt, 4, false));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long long>(v.size()));
}
BENCHMARK(BM_QorRtoS)->DenseRange(1, 5);

// Reads back 1000 texts of the format given by the argument.
static void BM_QorAtoF(benchmark::State& state) {
    const auto fmt = static_cast<Qor::lFormat>(state.range(0));
    std::vector<std::wstring> texts;
    wchar_t buf[kQorLengthTextSize];
    for (double x : values())
        if (qorRtoS(buf, x, fmt, 4, false))
            texts.emplace_back(buf);
    for (auto _ : state) {
        for (const std::wstring& t : texts)
            benchmark::DoNotOptimize(qorAtoF(t.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<long long>(texts.size()));
}
BENCHMARK(BM_QorAtoF)->DenseRange(1, 5);
