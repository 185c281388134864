#!/usr/bin/env bash
# Lists what ./zv does.
cat <<'TXT'
usage: ./zv COMMAND [OPTIONS]

Each command installs the Debian packages it is missing (as root or with sudo), builds and does its work.

  run [OPTIONS]          start Settings for Linux with a demo phone and print its address; --help lists the options
  test [REGEX]           build everything and run all tests, or those whose names match
  lint [--fast]          check formatting, static analysis, scripts and house rules; --fast leaves out clang-tidy
  format                 format all C, C++ and Objective-C++ sources
  device [FOLDER]        make the phone's package, in build/device or the folder named
  bench [FILTER]         measure everything that has a bar to hold, or what FILTER names; --json FILE writes the figures
  fuzz [NAME [SECONDS]]  run every fuzzer for a short time, or one for longer
  shots [LANGUAGE...]    screenshots of every page in every language, or those named, side by side
  help                   this text

docs/building.md says more.
TXT
