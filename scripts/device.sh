#!/usr/bin/env bash
# Builds the installable package for a phone in build/device, without Apple's SDK.
# usage: ./zv device [OUTPUT-FOLDER]
set -euo pipefail
source scripts/common.sh
need 'the device build' clang lld llvm cmake ninja-build python3 libsqlite3-dev librsvg2-bin git
want 'the 32-bit slice' lld-13

output=${1:-build/device}
[[ -f $output/resources/build.ninja ]] || cmake -G Ninja -S platform/ios -B "$output/resources" >/dev/null
cmake --build "$output/resources" >/dev/null
python3 packaging/tools/device.py --resources "$output/resources/Zelvora.bundle" \
    --product "$output/resources/product" --output "$output"
