#!/bin/sh
# The main job: builds the Windows DLL and the demo host, and runs the host under
# Wine. The host loads Qor_2016_18_64_Mfc.Dll with LoadLibraryW as a host CAD
# program does and reports what it loaded.
set -eu
cd "$(dirname "$0")/.."
sh tools/install_deps.sh
cmake --preset windows >/dev/null
cmake --build --preset windows --target qor_demo_host
OUT="$(pwd)/build/demo"
mkdir -p "$OUT"
build/windows/wine-run.sh build/windows/bin/qor_demo_host.exe | tee "$OUT/demo_host.txt"
build/windows/wine-run.sh --stop
echo "report written to $OUT/demo_host.txt"
