#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs from Debian's packages whatever the game needs to build, run and be
# tested, and nothing when it is all there already. A script that needs more
# (the benchmark, Orca's transcript) names its own packages as arguments.
set -euo pipefail

packages=(
    build-essential cmake pkg-config ninja-build
    qt6-base-dev qt6-translations-l10n libgl-dev
    libgtest-dev
    libsndfile1-dev libasound2-dev libmp3lame-dev libfontconfig-dev
    fonts-quicksand fonts-comic-neue
    clang-format
    desktop-file-utils appstream lintian
    "$@"
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
