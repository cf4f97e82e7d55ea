# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Sourced by the robustness scripts: builds one of tools/robustness's
# programs in build/ (configure and build both under the shared build lock,
# so neither runs beside another build) and gives the script a scratch data
# folder, $folder, that goes away when the script ends.
cd "$(dirname "$0")/.."
lock="${QUILLORA_BUILD_LOCK:-/tmp/quillora-build.lock}"
flock "$lock" cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
flock "$lock" cmake --build build --target "$robustness_tool" >/dev/null
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
