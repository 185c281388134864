#!/usr/bin/env bash
# Compiles the example against the host platform of a finished build.
# usage: docs/example/build.sh [BUILD-FOLDER] [OUTPUT]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
build=${1:-build/host} output=${2:-build/drive}

clang++ -std=c++20 docs/example/drive.mm -o "$output" \
    -fobjc-runtime=gcc -fblocks -fconstant-string-class=NSConstantString -fexceptions -fobjc-exceptions \
    -D_NATIVE_OBJC_EXCEPTIONS -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 \
    -Iplatform/include -Iplatform/host -isystem cmake/compat -isystem /usr/include/GNUstep \
    -idirafter "$(gcc -print-file-name=include)" \
    -L"$build/platform/host" -Wl,-rpath,"$(realpath "$build/platform/host")" \
    -lzvplatform -lBlocksRuntime -lgnustep-base -lobjc
