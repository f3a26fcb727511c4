// The main of the benchmarks: the library wired as the DLL wires it at load, then
// Google Benchmark.
#include "host/install.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    QOR::host::installDefaultHost();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
