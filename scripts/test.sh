#!/usr/bin/env bash
# Builds everything and runs the tests.
set -euo pipefail
source scripts/common.sh

# A node that does not come from Debian brings its own npm; Debian's would not go beside it.
need_browser_tools() {
    if ! command -v node >/dev/null || ! command -v npm >/dev/null; then need 'the browser tests' nodejs npm; fi
    command -v chromium >/dev/null || need 'the browser tests' chromium
    [[ -d tests/browser/node_modules ]] || npm --prefix tests/browser ci --no-audit --no-fund
}

need_build_tools libgtest-dev libgmock-dev
need 'the device tests' lld llvm binutils dpkg shellcheck git g++-aarch64-linux-gnu g++-arm-linux-gnueabihf qemu-user googletest
want 'the 32-bit slice' lld-13
need_browser_tools
build host
options=(--preset host --parallel "$(nproc)")
(($# > 0)) && options+=(--tests-regex "$1")
ctest "${options[@]}"
