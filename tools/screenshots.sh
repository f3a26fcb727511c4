#!/bin/sh
# Screenshots of the library's windows, for a person to look at: the demo host's
# viewer shows each window on a virtual X display (Xvfb) through Wine's x11 driver,
# and writes the PNG of its client area (--screenshot) into docs/pictures/windows.
# The display list of every demo document, the vertex list view, the slide window
# with a slide file and a library member, and the picture window with a .bmp and
# an .ico.
#
# Wine runs in a prefix of its own (build/windows/wineprefix-x11), switched to the
# x11 driver; the tests' prefix keeps its null driver and stays headless.
set -eu
cd "$(dirname "$0")/.."
ROOT="$(pwd)"
sh tools/install_deps.sh
if ! command -v Xvfb >/dev/null 2>&1; then
    echo "installing: xvfb"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends xvfb xauth >/dev/null
fi
cmake --preset windows >/dev/null
cmake --build --preset windows --target qor_demo_host

OUT="$ROOT/docs/pictures/windows"
WORK="$ROOT/build/screenshots"
mkdir -p "$OUT" "$WORK"
WINE=$(sed -n 's/^WINE=//p' build/windows/wine-run.sh)
WINESERVER=$(sed -n 's/^WINESERVER=//p' build/windows/wine-run.sh)
WINEPREFIX="$ROOT/build/windows/wineprefix-x11"
WINEDEBUG=-all
WINEARCH=win64
WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
export WINEPREFIX WINEDEBUG WINEARCH WINEDLLOVERRIDES

# A free display number, and the virtual display on it.
n=90
while [ -e "/tmp/.X11-unix/X$n" ] || [ -e "/tmp/.X$n-lock" ]; do
    n=$((n + 1))
done
DISPLAY=":$n"
export DISPLAY
Xvfb "$DISPLAY" -screen 0 1280x1024x24 -nolisten tcp >"$WORK/xvfb.log" 2>&1 &
XVFB=$!
cleanup() {
    "$WINESERVER" -k >/dev/null 2>&1 || true
    kill "$XVFB" 2>/dev/null || true
}
trap cleanup EXIT
sleep 1

if [ ! -f "$WINEPREFIX/.qor-ready" ]; then
    "$WINE" wineboot -i </dev/null >/dev/null 2>&1
    "$WINESERVER" -w
    touch "$WINEPREFIX/.qor-ready"
fi
"$WINE" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d x11 /f </dev/null >/dev/null 2>&1

# A picture for the picture window: a 24-bit .bmp of flat colour fields.
python3 - "$WORK/fields.bmp" <<'PY'
import struct, sys
w, h = 320, 200
rows = []
for y in range(h):
    row = b""
    for x in range(w):
        r, g, b = (230, 230, 230)
        if x < 160 and y < 100: r, g, b = (200, 40, 40)
        if x >= 160 and y >= 100: r, g, b = (40, 80, 200)
        if (x - 160) ** 2 + (y - 100) ** 2 < 60 ** 2: r, g, b = (250, 200, 30)
        row += bytes((b, g, r))
    rows.append(row)
data = b"".join(reversed(rows))
head = struct.pack("<2sIHHI", b"BM", 54 + len(data), 0, 0, 54)
info = struct.pack("<IiiHHIIiiII", 40, w, h, 1, 24, 0, len(data), 2835, 2835, 0, 0)
open(sys.argv[1], "wb").write(head + info + data)
PY

status=0
shot() {
    out="$1"
    shift
    if "$WINE" build/windows/bin/qor_demo_host.exe --size 640x480 --view "$@" \
        --screenshot "Z:$OUT/$out.png" >"$WORK/$out.log" 2>&1; then
        echo "  $out.png"
    else
        echo "  $out.png FAILED:" >&2
        cat "$WORK/$out.log" >&2
        status=1
    fi
}

echo "screenshots on $DISPLAY (Xvfb, Wine's x11 driver) into $OUT:"
MODEL="Z:$ROOT/tests/data/model/demo_model.qdt"
SLIDES="Z:$ROOT/tests/data/slides"
# The demo documents in their order (tools/demo_documents.cpp), then the vertex
# list view as the page after them.
page=1
for name in hole drill slide styles symbols glyphs bar sheet sandwich wall slides vll; do
    shot "dplist_$name" "$MODEL" --page "$page" --slides "$SLIDES/mylib.slb"
    page=$((page + 1))
done
shot slide_kss "$SLIDES/slide_kss.sld"
shot slide_dn "$SLIDES/slide_dn.sld"
shot slide_library_SLIDE2 "$SLIDES/mylib.slb:SLIDE2"
shot picture_bmp "Z:$WORK/fields.bmp"
shot picture_ico "Z:$ROOT/resources/icons/qor_2000.ico"
exit $status
