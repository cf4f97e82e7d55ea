#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Makes the screenshots the metainfo names, from the game as built, on a
# private Xvfb: the main menu, a game in play and a lost game, written to
# screenshots/ (menu.png, tablero.png, muerto.png). With SCALE=2 the game
# runs at twice the size, as on a HiDPI screen. Safe to run again: each run
# starts from a fresh configuration, and the phrase comes from theme 11.
set -euo pipefail
[ -n "${TRACE:-}" ] && set -x
cd "$(dirname "$0")/.."
for p in xvfb xdotool imagemagick; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ -n "${missing[*]:-}" ]; then
    sudo_cmd=(); [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
cmake --build build --target quillora-vesta >/dev/null
scale="${SCALE:-1}"
out="${OUT:-screenshots}"
mkdir -p "$out"

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
Xvfb -displayfd 3 -screen 0 "$((1280 * scale))x$((800 * scale))x24" 3>"$work/display" >/dev/null 2>&1 &
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" QT_SCALE_FACTOR="$scale"
mkdir -p "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME/quillora-vesta" && chmod 700 "$XDG_RUNTIME_DIR"
# Theme 11, sounds off, the animation and the points on: lines
# 1..20 of the options file.
printf '%s\r\n' "" "" 0 0 0 0 0 0 0 1 11 1 0 0 "Quillora VS" 0 0 15759390 0 0 \
    >"$XDG_CONFIG_HOME/quillora-vesta/QuilloraVS5.txt"

shot() { import -window "$1" "$out/$2"; }
ln -s "$PWD/build/src/quillora-vesta" "$work/game"
"$work/game" >"$work/game.log" 2>&1 &
# The start screen goes after 0.65 s; the menu is what shows after it.
timeout 15 xdotool search --sync --onlyvisible --name '^Quillora Vesta$' >/dev/null
sleep 2
menu=$(xdotool search --onlyvisible --name '^Quillora Vesta$' | tail -n 1)
shot "$menu" menu.png
xdotool windowfocus --sync "$menu" key 1
board=$(timeout 10 xdotool search --sync --onlyvisible --name '^Quillora Vesta [|]' | head -n 1)
sleep 1
xdotool windowfocus --sync "$board" key Return
sleep 1
xdotool key Return
sleep 1
for letter in a e o; do xdotool key "$letter"; sleep 0.4; done
sleep 0.8
shot "$board" tablero.png
for letter in q w x y z j k f g h b c d p; do xdotool key "$letter"; sleep 0.3; done
sleep 1.5
shot "$board" muerto.png
echo "$out: $(ls "$out" | tr '\n' ' ')"
