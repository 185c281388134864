#!/usr/bin/env bash
# Compiles the tests of the bundle's plain pieces for an ARM Linux, static, and runs them under qemu-user: word size and
# the signedness of char differ from this machine's as they do on the phone.
# usage: arm_tests.sh TARGET-TRIPLE EMULATOR OUTPUT-FOLDER SOURCE...
set -euo pipefail
triple=$1 emulator=$2 output=$3
shift 3
googletest=/usr/src/googletest/googletest
mkdir -p "$output"

compile=("$triple-g++" -std=c++20 -O1 -Wall -Wextra -Werror -static -I. -Itests "-I$googletest/include" "-I$googletest")
library=$output/gtest.o
[[ -f $library ]] || "${compile[@]}" -c "$googletest/src/gtest-all.cc" -o "$library"

for char in unsigned signed; do
    program=$output/plain-tests-$char-char
    "${compile[@]}" "-f$char-char" "$@" "$googletest/src/gtest_main.cc" "$library" -o "$program" 2> >(grep -v getaddrinfo >&2)
    "$emulator" "$program" --gtest_brief=1
done
