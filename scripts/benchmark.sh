#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Measures the game on this machine under Xvfb, side by side with a bare Qt
# Widgets window built here too:
#   1. how long the start screen takes to show, against the bare window;
#   2. resident memory with the board open;
#   3. CPU used over 10 seconds with the board open and no game in play.
# Needs xvfb and xdotool (installed when missing). Prints one line a figure.
set -euo pipefail
cd "$(dirname "$0")/.."

need=()
command -v Xvfb >/dev/null || need+=(xvfb)
command -v xdotool >/dev/null || need+=(xdotool)
if [ ${#need[@]} -gt 0 ]; then
    sudo_cmd=(); [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get install -y -qq "${need[@]}" >/dev/null
fi
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target quillora-vesta >/dev/null

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
g++ -std=c++20 -O2 -fPIC tools/bench/bare_window.cpp -o "$work/bare-window" \
    $(pkg-config --cflags --libs Qt6Widgets)

# Xvfb picks a free display itself and tells which.
Xvfb -displayfd 3 -screen 0 1280x800x24 3>"$work/display" >/dev/null 2>&1 &
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"

now_ms() { date +%s%3N; }
# Milliseconds from launch until a visible window with this title exists.
time_to_window() {
    local title=$1; shift
    local start end pid
    start=$(now_ms)
    "$@" >/dev/null 2>&1 &
    pid=$!
    # Poll every 5 ms: xdotool's own --sync only looks twice a second.
    until xdotool search --onlyvisible --name "^${title}\$" >/dev/null 2>&1; do
        if ! kill -0 "$pid" 2>/dev/null; then
            echo "$title did not start" >&2
            exit 1
        fi
        sleep 0.005
    done
    end=$(now_ms)
    kill "$pid"; wait "$pid" 2>/dev/null || true
    echo $((end - start))
}
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }

runs=7
bare=$(for _ in $(seq $runs); do time_to_window bare-window "$work/bare-window"; done | median)
game=$(for _ in $(seq $runs); do time_to_window "Quillora Vesta" ./build/src/quillora-vesta; done | median)
echo "start screen shown: ${game} ms (bare Qt window: ${bare} ms, ratio $(awk "BEGIN{printf \"%.2f\", $game/$bare}"))"

# The board: through the start screen and the menu, "1" plays alone.
./build/src/quillora-vesta >/dev/null 2>&1 &
pid=$!
sleep 2
menu=$(xdotool search --sync --onlyvisible --name "^Quillora Vesta\$" | head -n 1)
# A click on the first option, "JUGAR SOLO" (no window manager gives focus).
xdotool mousemove --window "$menu" 49 103 click 1
if ! timeout 10 xdotool search --sync --onlyvisible --name "^Quillora Vesta [|] Puntos" >/dev/null; then
    echo "the board did not open" >&2
    exit 1
fi
sleep 1
rss_kb=$(awk '/^VmRSS/ {print $2}' "/proc/$pid/status")
echo "resident memory with the board open: $((rss_kb / 1024)) MB"

ticks_per_s=$(getconf CLK_TCK)
cpu() { awk '{print $14 + $15}' "/proc/$pid/stat"; }
before=$(cpu)
sleep 10
after=$(cpu)
echo "CPU over 10 s with the board idle: $(( (after - before) * 1000 / ticks_per_s )) ms"
kill "$pid"
