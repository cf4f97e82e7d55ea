#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what is missing, builds everything and runs every test. The window
# tests draw on Qt's offscreen platform, so no display is needed.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
export QT_QPA_PLATFORM=offscreen
# Qt complains on every start when there is no runtime folder (root, CI).
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    export XDG_RUNTIME_DIR="${TMPDIR:-/tmp}/quillora-runtime-$(id -u)"
    mkdir -p "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
fi
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build
ctest --test-dir build --output-on-failure
# The Debian package, built and checked by the validators Debian uses.
bash scripts/package.sh
# Every test again, under AddressSanitizer and UndefinedBehaviorSanitizer.
bash scripts/sanitize.sh
