#!/usr/bin/env bash
# Takes pictures of every page in every language, to look at side by side in build/shots.
# usage: ./zv shots [LANGUAGE...]
set -euo pipefail
source scripts/common.sh

case "${1:-}" in
    -h | --help) sed -n '2,3s/^# //p' scripts/shots.sh; exit ;;
    *) ;;
esac
need_build_tools fonts-noto-color-emoji
need_browser_tools
build host zelvora-simulator
mkdir -p build/shots
languages=("$@")
if (($# == 0)); then
    for folder in resources/*.lproj; do
        languages+=("$(basename "$folder" .lproj)")
    done
fi
exec node tests/browser/shots.mjs build/host/simulator/zelvora-simulator build/shots "${languages[@]}"
