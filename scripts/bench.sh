#!/usr/bin/env bash
# Builds and runs every benchmark: a table of figures, each with its aim and its bar. Ends badly when one is over its bar.
# usage: ./zv bench [FILTER] [--json FILE]     FILTER is a regular expression on the names
set -euo pipefail
source scripts/common.sh
if [[ ${1:-} == -h || ${1:-} == --help ]]; then
    sed -n '2,3s/^# //p' "$0"
    exit
fi
need_build_tools libbenchmark-dev libplist-dev
build bench zv_bench >&2
exec build/bench/benchmarks/zv_bench "$@"
