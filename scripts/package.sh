#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the Debian source and binary packages through debian/, in
# build-deb/, the way Debian would (tests included; DEB_BUILD_OPTIONS=nocheck
# leaves them out), and checks the desktop entry and metainfo inside the
# package and the whole upload with the validators Debian uses. Prints the
# package's path last. Builds share one lock, so two never run at once.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh debhelper
out="${QUILLORA_DEB_BUILD:-build-deb}"
lock="${QUILLORA_BUILD_LOCK:-/tmp/quillora-build.lock}"
version=$(dpkg-parsechangelog -S Version)
upstream="${version%-*}"
name="quillora-vesta-$upstream"
arch=$(dpkg --print-architecture)

# dpkg-buildpackage writes its packages beside the tree it builds, so it
# builds a copy of the tree in $out: the files git knows or would add, as
# they are in the work tree now, committed or not.
mkdir -p "$out"
rm -rf "${out:?}/$name" "$out"/quillora-vesta_* "$out"/quillora-vesta-dbgsym_*
mkdir "$out/$name"
if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git ls-files -z --cached --others --exclude-standard |
        while IFS= read -r -d '' file; do [ -e "$file" ] && printf '%s\0' "$file"; done |
        tar -c --null -T - | tar -x -C "$out/$name"
else
    tar -c --exclude=./build --exclude='./build-*' --exclude=./screenshots . |
        tar -x -C "$out/$name"
fi
# No release tarballs are published yet: the upstream tarball is the tree
# without its debian/ folder (see debian/README.source).
tar -C "$out" --exclude="$name/debian" -cJf "$out/quillora-vesta_$upstream.orig.tar.xz" "$name"
(cd "$out/$name" && flock "$lock" dpkg-buildpackage -us -uc)
deb="$out/quillora-vesta_${version}_$arch.deb"

check_dir=$(mktemp -d)
trap 'rm -rf "$check_dir"' EXIT
dpkg-deb -x "$deb" "$check_dir"
desktop-file-validate "$check_dir"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$check_dir"/usr/share/metainfo/*.metainfo.xml
# The source, the packages and the upload itself, as Debian would check it.
lintian --fail-on error,warning "$out/quillora-vesta_${version}_$arch.changes"
echo "$deb"
