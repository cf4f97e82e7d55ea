#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plays GAMES (10 000 by default) whole games through the game's rules with
# tools/robustness/soak, in a fresh data folder, and checks that resident
# memory stays flat: under 1 MB more at the last game than at game 1 000.
set -euo pipefail
games="${1:-10000}"
robustness_tool=soak
. "$(dirname "$0")/robustness-common.sh"
start=$(date +%s)
build/tools/robustness/soak "$games" "$folder" "${SEED:-1}" | tee "$folder/soak.log"
echo "took $(($(date +%s) - start)) s"
first=$(sed -n 's/^game 1000: resident \([0-9]*\) kB$/\1/p' "$folder/soak.log")
last=$(sed -n "s/^game $games: resident \\([0-9]*\\) kB\$/\\1/p" "$folder/soak.log")
growth=$((last - first))
echo "resident memory from game 1000 to game $games: +$growth kB"
if [ "$growth" -ge 1024 ]; then
    echo "memory grew by 1 MB or more" >&2
    exit 1
fi
