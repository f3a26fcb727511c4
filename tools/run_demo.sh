#!/bin/sh
# The main job: builds the Windows DLL and the demo host, and runs the host under
# Wine. The host loads Qor_2016_18_64_Mfc.Dll as a host CAD program does, renders
# the sample model through the DLL into enhanced metafiles (refresh) and makes a
# PNG preview of each. Works headless (Wine's null display driver).
set -eu
cd "$(dirname "$0")/.."
ROOT="$(pwd)"
sh tools/install_deps.sh
cmake --preset windows >/dev/null
cmake --build --preset windows --target qor_demo_host
OUT="$ROOT/build/demo"
rm -rf "$OUT"
mkdir -p "$OUT"
# Wine sees the Linux file system as drive Z:.
status=0
build/windows/wine-run.sh build/windows/bin/qor_demo_host.exe \
    --model "Z:$ROOT/tests/data/model" \
    --slides "Z:$ROOT/tests/data/slides/mylib.slb" \
    --out "Z:$OUT" >"$OUT/demo_host.txt" 2>&1 || status=$?
cat "$OUT/demo_host.txt"
build/windows/wine-run.sh --stop
echo
echo "metafiles (.emf) and their PNG previews are in $OUT:"
ls -1 "$OUT" | sed 's/^/  /'
echo "report written to $OUT/demo_host.txt"
if [ "$status" -ne 0 ]; then
    echo "the demo host failed (status $status)" >&2
fi
exit "$status"
