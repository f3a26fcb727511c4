#!/bin/sh
# Builds every configuration and runs every test: native, native under
# AddressSanitizer + UndefinedBehaviorSanitizer, and Windows x64 under Wine.
# Exits non-zero when anything fails to build or any test fails.
set -u
cd "$(dirname "$0")/.."
sh tools/install_deps.sh || exit 1

mkdir -p build
status=0
summary=""
for preset in linux linux-asan windows; do
    echo "=== $preset: configure and build"
    if ! cmake --preset "$preset" >"build/configure-$preset.log" 2>&1; then
        cat "build/configure-$preset.log"
        echo "=== $preset: configure FAILED"
        status=1
        continue
    fi
    rm -f "build/configure-$preset.log"
    if ! cmake --build --preset "$preset" -- -k 0; then
        echo "=== $preset: build FAILED"
        status=1
        continue
    fi
    echo "=== $preset: tests"
    ctest --preset "$preset" >"build/$preset/ctest.log" 2>&1
    rc=$?
    grep -E "tests passed|tests failed|The following tests|\(Failed\)|\(Timeout\)|\(SEGFAULT\)|Not Run|\*\*\*Exception" "build/$preset/ctest.log" | tail -40
    if [ $rc -ne 0 ]; then
        sed -n '/The following tests FAILED/,$p' "build/$preset/ctest.log"
        status=1
    fi
    summary="$summary
$preset: $(grep -E 'tests passed' "build/$preset/ctest.log" | tail -1)"
done
[ -x build/windows/wine-run.sh ] && build/windows/wine-run.sh --stop
echo "=== summary$summary"
exit $status
