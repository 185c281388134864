#!/usr/bin/env bash
# Builds and runs the benchmarks: a table of ratios to bare work, each with its aim and its bar. Ends badly when one is over its bar.
# usage: ./zv bench [FILTER] [--json FILE]     FILTER is a regular expression on the names
set -euo pipefail
source scripts/common.sh
if [[ ${1:-} == -h || ${1:-} == --help ]]; then
    sed -n '2,3s/^# //p' "$0"
    exit
fi
need_build_tools libbenchmark-dev libplist-dev
build bench benchmarks/all
exec build/bench/benchmarks/zv_bench "$@"
