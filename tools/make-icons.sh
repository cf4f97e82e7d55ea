#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Draws the game's icon at every size the desktop asks for, from the one
# drawing in data/icons/quillora-vesta.svg, into data/icons/<size>.png. The
# pictures are kept in the repository, so a build needs no SVG renderer; run
# this again after changing the drawing (needs rsvg-convert, librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")/../data/icons"
for size in 16 22 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" quillora-vesta.svg --output "$size.png"
done
