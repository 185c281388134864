#!/usr/bin/env bash
# Shows the settings pages in a web page, on a phone made of a folder. `./zv run --help` lists the options.
set -euo pipefail
source scripts/common.sh

for option in "$@"; do
    case $option in
        -h | --help) exec cat simulator/usage.txt ;;
        *) ;;
    esac
done

# shellcheck disable=SC2119 # no further packages
need_build_tools
build host zelvora-simulator >&2
exec build/host/simulator/zelvora-simulator "$@"
