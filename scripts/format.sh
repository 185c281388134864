#!/usr/bin/env bash
# Formats all C, C++ and Objective-C++ sources in place.
set -euo pipefail
source scripts/common.sh
need 'formatting' clang-format
git ls-files -co --exclude-standard '*.h' '*.mm' '*.cpp' '*.m' '*.c' | xargs clang-format -i
