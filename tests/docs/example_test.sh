#!/usr/bin/env bash
# Builds the example against a finished build, runs it on a fresh device folder and reads what it says.
# usage: example_test.sh BUILD-FOLDER
set -euo pipefail
build=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

docs/example/build.sh "$build" "$folder/drive"
HOME=$folder "$folder/drive" "$folder/device" "$build/Zelvora.bundle" | tee "$folder/said"
grep -qx 'notification: ZVSettingsChanged' "$folder/said"
[[ $(grep -c '^notification: ' "$folder/said") == 1 ]]
[[ -f $folder/device/var/mobile/Library/Preferences/zelvora.plist ]]
