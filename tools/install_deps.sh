#!/bin/sh
# Installs with apt-get what the build and the tests need and this machine lacks
# (Debian 12, run as root). Does nothing when everything is there.
set -e
PACKAGES="cmake ninja-build g++ make g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64
wine64 googletest libbenchmark-dev clang-format util-linux python3"
missing=""
for p in $PACKAGES; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $p"
    fi
done
if [ -n "$missing" ]; then
    echo "installing:$missing"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    # shellcheck disable=SC2086
    apt-get install -y -qq --no-install-recommends $missing >/dev/null
fi
