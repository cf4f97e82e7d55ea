#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Kills a program saving a configuration file the way the game saves, once
# at every step of the save: the temporary file created, its bytes written,
# synced to the disk, renamed over the old file, the folder synced. The
# program sends itself SIGKILL right at the step, so no moment of a save is
# left to chance. Each time the data folder must hold one whole save: the
# old file until the rename, the new one from the rename on, never a mix,
# never a short one. The next start of the game tidies the temporary files
# a kill leaves, so those are counted, not failed.
set -euo pipefail
robustness_tool=saver
. "$(dirname "$0")/robustness-common.sh"
saver=build/tools/robustness/saver
file="$folder/QuilloraVS5.txt"
steps=$("$saver" --steps)
kills=0
left=0
expected=0
for step in $steps; do
    find "$folder" -mindepth 1 -delete
    "$saver" --first "$file"
    # In the background, so the shell does not report the kill on stderr.
    "$saver" --stop-at "$step" "$file" &
    status=0
    wait $! 2>/dev/null || status=$?
    if [ "$status" -ne $((128 + 9)) ]; then
        echo "$step: the saver was not killed at that step (exit status $status)" >&2
        exit 1
    fi
    kills=$((kills + 1))
    if ! save=$("$saver" --check "$file"); then
        echo "$step: the file is not one whole save" >&2
        exit 1
    fi
    if [ "$step" = renamed ]; then
        expected=1
    fi
    if [ "$save" -ne "$expected" ]; then
        echo "$step: the file is save $save, not save $expected" >&2
        exit 1
    fi
    left=$((left + $(find "$folder" -mindepth 1 -name '.quillora-*.tmp' | wc -l)))
done
echo "$kills kills, one at each step of a save ($(echo $steps)): the file was one whole save" \
    "every time, the old one until the rename and the new one from it on;" \
    "$left temporary files were left by the kills"
