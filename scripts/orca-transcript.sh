#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plays the game by keys with Orca, the screen reader, listening, and prints
# what Orca said: one line a key, "[key]" and then what Orca said after it,
# each utterance ended by " / "; lines starting with "#" say what is played. Everything runs on a display and a D-Bus session
# of its own: Xvfb with Openbox (a window manager gives the game's windows
# the focus, as a desktop does), the accessibility bus, Orca with its speech
# going nowhere (no speech server is reached; Orca's debug log keeps what it
# would have said), and the game with Qt's accessibility on.
#
# The games: two players, so that the friend's phrase window lays a known
# phrase; one game won with a hit, a miss taken back (with its two message
# boxes), a letter tried again and F6, one lost. Then a game alone, whose
# phrase is drawn, played letter by letter until it ends. Needs xvfb,
# xdotool, openbox, orca, at-spi2-core and python3-pyatspi (installed when
# missing). With TRANSCRIPT_LOG=FILE it also keeps Orca's whole debug log
# there; with TRANSCRIPT_SHOTS=DIR, a picture of the screen (ImageMagick's
# import) wherever a window it waits for is late.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" != --inside ]; then
    bash scripts/install-deps.sh xvfb xdotool openbox orca at-spi2-core python3-pyatspi dbus
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
    cmake --build build --target quillora-vesta >/dev/null

    work=$(mktemp -d)
    trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$work"' EXIT
    Xvfb -displayfd 3 -screen 0 1280x1024x24 3>"$work/display" >/dev/null 2>&1 &
    for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
    export DISPLAY=":$(cat "$work/display")"
    # The accessibility bus puts its socket in the runtime folder: one of our
    # own keeps it apart from any other session on this machine.
    export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" HOME="$work/home"
    mkdir -p "$XDG_RUNTIME_DIR" "$HOME" && chmod 700 "$XDG_RUNTIME_DIR"
    # No sounds and no animated status: the transcript is about speech.
    mkdir -p "$XDG_CONFIG_HOME/quillora-vesta"
    printf '%s\r\n' "" "" 1 0 0 0 0 0 0 0 5 1 0 0 "Quillora VS" 0 0 15759390 0 0 \
        >"$XDG_CONFIG_HOME/quillora-vesta/QuilloraVS5.txt"
    # The transcript leaves on descriptor 3; the session's own daemons talk
    # on the standard output, which goes nowhere.
    dbus-run-session -- "$0" --inside "$work" 3>&1 >/dev/null
    if [ -n "${TRANSCRIPT_LOG:-}" ]; then
        cp "$work/orca.log" "$TRANSCRIPT_LOG"
    fi
    exit 0
fi

work=$2
log="$work/orca.log"
exec >&3 3>&-
trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
openbox >/dev/null 2>&1 &
# Orca writes its log through a buffer; the transcript reads it line by line
# as it grows.
mkdir -p "$work/orca"
printf '%s\n' "import orca.debug" "if orca.debug.debugFile:" \
    "    orca.debug.debugFile.reconfigure(line_buffering=True)" \
    >"$work/orca/orca-customizations.py"
# Started through the interpreter, Orca does not take another user's Orca on
# this machine for one of its own and refuse to start.
/usr/bin/python3 /usr/bin/orca -u "$work/orca" --debug-file="$log" -d braille \
    >"$work/orca.out" 2>&1 &
for _ in $(seq 100); do grep -q "SPEECH OUTPUT: 'Screen reader on.'" "$log" 2>/dev/null && break; sleep 0.1; done
QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 ./build/src/quillora-vesta >"$work/game.log" 2>&1 &
game=$!

# What Orca said since the last call, into $utterances, once it has been
# quiet for a moment: Orca takes its time over the game's events.
said=0
heard() {
    local size=-1 quiet=0 lines
    for _ in $(seq 60); do
        if [ "$(stat -c %s "$log")" = "$size" ]; then
            quiet=$((quiet + 1))
            [ $quiet -ge 6 ] && break
        else
            size=$(stat -c %s "$log") quiet=0
        fi
        sleep 0.1
    done
    lines=$(grep "SPEECH OUTPUT: " "$log" |
        sed "s/^.*SPEECH OUTPUT: '//; s/' *{'established.*//; s/^ *//; s/ *$//")
    utterances=$(tail -n +$((said + 1)) <<<"$lines" | sed '/^$/d' | sed ':a; N; $!ba; s|\n| / |g')
    said=$(grep -c "" <<<"$lines" || true)
}
# Presses keys, one at a time, and prints them and what Orca said then.
press() {
    for key in "$@"; do
        xdotool key "$key"
        heard
        echo "[$key] $utterances"
    done
}
# Waits for a window of this title to show.
window() {
    if ! timeout 15 xdotool search --sync --onlyvisible --name "$1" >/dev/null; then
        echo "# no window $1 showed"
        if [ -n "${TRANSCRIPT_SHOTS:-}" ]; then
            import -window root "$TRANSCRIPT_SHOTS/late-$(date +%s%N).png"
        fi
    fi
}
# The keys that type a text.
keys_of() {
    local text=$1 i
    for ((i = 0; i < ${#text}; i++)); do
        case "${text:i:1}" in
            " ") echo space ;;
            *) echo "${text:i:1}" | tr '[:upper:]' '[:lower:]' ;;
        esac
    done
}

window "^Quillora Vesta\$"
sleep 1.5
heard >/dev/null
echo "# The menu: two players"
press Tab Tab
press Return
window "^Jugadores:\$"
heard; [ -z "$utterances" ] || echo "  $utterances"
press Escape

echo "# A game won: LOS TRES CERDITOS"
press Return
window "^LA FRASE ES:\$"
heard; [ -z "$utterances" ] || echo "  $utterances"
mapfile -t phrase < <(keys_of "LOS TRES CERDITOS")
echo "# (the friend types the phrase)"
for key in "${phrase[@]}"; do xdotool key "$key"; sleep 0.05; done
heard >/dev/null
press Return
press s
press a Delete Return Return
press s
press F6
for letter in l o t r e c d i; do press "$letter"; done
press F6
press ctrl+h
press Escape

echo "# A game lost: SOL"
press Return Return
window "^LA FRASE ES:\$"
heard; [ -z "$utterances" ] || echo "  $utterances"
for key in s o l; do xdotool key "$key"; sleep 0.05; done
heard >/dev/null
press Return
for letter in a b c d e f g h; do press "$letter"; done


echo "# Alone: the panels, and a game drawn from the catalogue"
press alt+BackSpace
window "^Quillora Vesta\$"
press Tab Return
window "^Quillora Vesta [|] Puntos"
press F4 F4
press Menu Down Down Down Down Return
press Escape
press Return
window "^EL TEMA ES:\$"
heard; [ -z "$utterances" ] || echo "  $utterances"
press Tab Return
window "^Lista de temas:\$"
press Escape
press Return
press F6
# The commonest letters first, until the game is won or lost.
for letter in e a o s r n i l d t u c m p b g v y q h f j z x k w; do
    press "$letter"
    case "$utterances" in *VICTORIA* | *MUERTO*) break ;; esac
done
press F6

if ! kill "$game" 2>/dev/null; then
    status=0
    wait "$game" || status=$?
    echo "the game stopped by itself (status $status):" >&2
    tail -n 20 "$work/game.log" >&2
    exit 1
fi
wait "$game" 2>/dev/null || true
