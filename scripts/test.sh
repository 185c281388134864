#!/usr/bin/env bash
# Builds everything and runs the tests.
set -euo pipefail
source scripts/common.sh

need_build_tools libgtest-dev libgmock-dev libclang-rt-14-dev libplist-utils
need 'the device tests' lld llvm binutils dpkg shellcheck git g++-aarch64-linux-gnu g++-arm-linux-gnueabihf qemu-user googletest
want 'the 32-bit slice' lld-13
need_browser_tools
build host
options=(--preset host --parallel "$(nproc)")
(($# > 0)) && options+=(--tests-regex "$1")
ctest "${options[@]}"
