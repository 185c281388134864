#!/usr/bin/env bash
# Builds and runs the fuzzers; new inputs stay in build/fuzz/inputs, crashing ones in build/fuzz/crashes. One worth keeping
# is copied to fuzz/corpus/NAME, where the tests replay it.
# usage: ./zv fuzz [NAME] [SECONDS]     one fuzzer or all, each for 60 seconds unless told otherwise
set -euo pipefail
source scripts/common.sh
if [[ ${1:-} == -h || ${1:-} == --help ]]; then
    sed -n '2,4s/^# //p' "$0"
    exit
fi
need_build_tools libclang-rt-14-dev

names() {
    local source
    for source in fuzz/*.mm fuzz/*.cpp; do basename "${source%.*}"; done
}

# run NAME SECONDS
run() {
    mkdir -p "build/fuzz/inputs/$1" build/fuzz/crashes
    printf '== %s\n' "$1"
    "build/fuzz/fuzz/fuzz_$1" -max_total_time="$2" -print_final_stats=1 -verbosity=0 \
        -artifact_prefix="build/fuzz/crashes/$1-" "build/fuzz/inputs/$1" "fuzz/corpus/$1"
}

build fuzz fuzz/all
case "${1:-}" in
    '' | [0-9]*) for name in $(names); do run "$name" "${1:-60}"; done ;;
    *) run "$1" "${2:-60}" ;;
esac
