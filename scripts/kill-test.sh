#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Kills a program saving a configuration file over and over, the way the
# game saves, at a random moment, ROUNDS times (500 by default), and checks
# each time that the data folder holds one whole save: the old file or the
# new one, never a mix, never a short one. The next start of the game tidies
# the temporary files a kill leaves, so those are counted, not failed.
set -euo pipefail
rounds="${1:-500}"
robustness_tool=saver
. "$(dirname "$0")/robustness-common.sh"
saver=build/tools/robustness/saver
file="$folder/QuilloraVS5.txt"
"$saver" --first "$file"
left=0
last=0
for round in $(seq "$rounds"); do
    "$saver" "$file" &
    pid=$!
    # Between 1 and 50 ms into the run: somewhere inside one of the saves.
    sleep "0.0$(printf '%02d' $((RANDOM % 50 + 1)))"
    kill -KILL "$pid"
    wait "$pid" 2>/dev/null || true
    if ! save=$("$saver" --check "$file"); then
        echo "round $round: the file is not one whole save" >&2
        exit 1
    fi
    last=$save
    left=$((left + $(find "$folder" -mindepth 1 -name '.quillora-*.tmp' | wc -l)))
    find "$folder" -mindepth 1 ! -path "$file" -delete
done
echo "$rounds kills: the file was one whole save every time (the last, save $last);" \
    "$left temporary files were left by the kills"
