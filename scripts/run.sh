#!/usr/bin/env bash
# Builds the library and its tool, then runs the main job.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/deps.sh
ensure_packages

cmake -S . -B build/run -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF $(launcher_args) >/dev/null
cmake --build build/run -j "$(nproc)"

tool=build/run/tools/libcontrol/libcontrol
show() { echo "\$ libcontrol $*"; "$tool" "$@" || echo "(exit code $?)"; echo; }

show --help
show round 1.005 2
show round -1.005 2
show amount 1234.5
show amount 12 0
show percent netfile 12.5 -3
show percent at1 12.5 4
show address CA ON Toronto "100 Queen Street West" "Suite 2500" "M5H 2N2"
show check sin 046454286 123456789
show postcode "K1A 0B1" X0A T2P
show tax --bracket 0:0.145:0 --bracket 57375:0.205:8319.38 80000

echo "\$ sample-return build/run/sample-return-output"
build/run/examples/sample-return/sample-return build/run/sample-return-output

# The pictures are drawn off screen; Qt's notes about the missing display go
# to a log that is shown only when a step fails.
quiet() {
    local status=0
    "$@" 2>build/run/offscreen.log || status=$?
    if [ "$status" -ne 0 ]; then
        cat build/run/offscreen.log >&2
        echo "(exit code $status)"
    fi
}

echo
echo "\$ sample-return --gui --grab build/run/gallery/sample-window.png"
mkdir -p build/run/gallery
quiet build/run/examples/sample-return/sample-return --gui --grab build/run/gallery/sample-window.png
echo "Sample return window: $PWD/build/run/gallery/sample-window.png"

echo
echo "\$ libcontrol gallery build/run/gallery"
quiet "$tool" gallery build/run/gallery
echo "Gallery: $PWD/build/run/gallery/index.html"
