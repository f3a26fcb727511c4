#!/bin/sh
# Runs the main job and copies its PNG previews into docs/pictures, where they are
# kept so that a person can judge the drawings without building anything.
set -eu
cd "$(dirname "$0")/.."
sh tools/run_demo.sh >/dev/null
for f in build/demo/*.png; do
    cp "$f" docs/pictures/
done
ls -l docs/pictures
