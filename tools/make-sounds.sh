#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the sound maker and writes the seven sounds of the game into
# src/ui/platform/sounds/, over whatever is there. Safe to run again: the same
# LAME gives the same bytes. Builds share one lock, so two never run at once.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir="${QUILLORA_SOUNDS_BUILD:-build-sounds}"
lock="${QUILLORA_BUILD_LOCK:-/tmp/quillora-build.lock}"
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DQUILLORA_BUILD_TESTS=OFF -DQUILLORA_BUILD_TOOLS=ON
flock "$lock" cmake --build "$build_dir" --target soundmaker -j2
"$build_dir/tools/soundmaker/soundmaker" src/ui/platform/sounds
