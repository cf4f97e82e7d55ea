#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the game and its tests with AddressSanitizer and
# UndefinedBehaviorSanitizer in build-asan/ and runs every test there once.
# Any report fails the run. Leaks are checked too, except those that belong
# to the system libraries under the windows (fontconfig and the like keep
# their caches for the life of the process): scripts/lsan.supp names them.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
build_dir="${QUILLORA_ASAN_BUILD:-build-asan}"
lock="${QUILLORA_BUILD_LOCK:-/tmp/quillora-build.lock}"
export QT_QPA_PLATFORM=offscreen
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    export XDG_RUNTIME_DIR="${TMPDIR:-/tmp}/quillora-runtime-$(id -u)"
    mkdir -p "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
fi
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQUILLORA_BUILD_TOOLS=OFF \
    -DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined" \
    -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" >/dev/null
flock "$lock" cmake --build "$build_dir"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
ctest --test-dir "$build_dir" --output-on-failure -j2
