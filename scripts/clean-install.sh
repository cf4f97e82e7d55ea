#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs the Debian package the way a player would, on a clean Debian 12:
# a minimal bookworm made with debootstrap (kept in CLEAN_ROOT for the next
# run), with a small Xfce desktop in Spanish and a user of its own. Inside
# it, apt installs the package with whatever it depends on; the script then
# checks that the desktop's menu lists the game under Games with its icon,
# starts the game by clicking that menu entry on a private Xvfb, plays a few
# strikes to see that the program draws with the fonts of Debian's font
# packages, and reads the manual page in Spanish and in English.
# Screenshots of the menu, the started game and the game in play go to OUT
# (screenshots/clean-install by default). Needs root and Debian's
# mirror; takes a few minutes the first time.
#
#   sudo bash scripts/clean-install.sh [package.deb]
set -euo pipefail
[ -n "${TRACE:-}" ] && set -x
cd "$(dirname "$0")/.."
if [ "$(id -u)" -ne 0 ]; then
    echo "debootstrap and chroot need root: run it with sudo" >&2
    exit 1
fi
deb="${1:-$(ls build-deb/quillora-vesta_*.deb 2>/dev/null | head -n 1)}"
if [ ! -f "$deb" ]; then
    echo "no package: build one first with scripts/package.sh" >&2
    exit 1
fi
root="${CLEAN_ROOT:-/var/tmp/quillora-clean-bookworm}"
out="${OUT:-screenshots/clean-install}"
mirror="${DEBIAN_MIRROR:-http://deb.debian.org/debian}"
mkdir -p "$out"

for p in debootstrap xvfb xdotool imagemagick; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ -n "${missing[*]:-}" ]; then
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"; }
as_player() {
    chroot "$root" su - jugadora -c "export DISPLAY=$DISPLAY LANG=es_ES.UTF-8 \
        XDG_RUNTIME_DIR=/run/user/1000; $1"
}

work=$(mktemp -d)
mounts=()
finish() {
    kill $(jobs -p) 2>/dev/null || true
    # The desktop's programs run inside the chroot: end them before its
    # folders are let go.
    for proc in /proc/[0-9]*; do
        [ "$(readlink "$proc/root" 2>/dev/null)" = "$(realpath "$root")" ] && kill "${proc#/proc/}" 2>/dev/null || true
    done
    for ((i = ${#mounts[@]} - 1; i >= 0; i--)); do umount -l "${mounts[i]}" 2>/dev/null || true; done
    rm -rf "$work"
}
trap finish EXIT

if [ ! -e "$root/.desktop-ready" ]; then
    echo "making a clean Debian 12 in $root"
    rm -rf "$root"
    debootstrap --variant=minbase bookworm "$root" "$mirror" >"$work/debootstrap.log"
    fresh=1
fi
for m in proc sys dev dev/pts; do
    mount --bind "/$m" "$root/$m" && mounts+=("$root/$m")
done
cp /etc/resolv.conf "$root/etc/resolv.conf"
if [ -n "${fresh:-}" ]; then
    # What a player's Xfce desktop brings, without the rest of the task.
    inside apt-get update -qq
    inside env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        xfce4-session xfce4-panel xfwm4 xfdesktop4 xfce4-settings xfconf dbus-x11 \
        adwaita-icon-theme man-db locales python3-xdg >/dev/null
    sed -i 's/^# *es_ES.UTF-8/es_ES.UTF-8/' "$root/etc/locale.gen"
    inside locale-gen >/dev/null
    inside useradd -m -s /bin/bash jugadora
    touch "$root/.desktop-ready"
fi

echo "installing $(basename "$deb") with apt"
inside env DEBIAN_FRONTEND=noninteractive apt-get remove -y -qq quillora-vesta >/dev/null 2>&1 || true
cp "$deb" "$root/tmp/quillora-vesta.deb"
inside apt-get update -qq
inside env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq /tmp/quillora-vesta.deb \
    >"$work/apt.log"
inside dpkg-query -W -f='${Package} ${Version} ${Status}\n' quillora-vesta

# The menu as the desktop builds it: Xfce's menu file, read by the same
# freedesktop rules its panel follows, and the icon the theme resolves.
inside python3 - <<'EOF'
import xdg.IconTheme, xdg.Menu
# Walked by its submenus, not by getEntries(), which follows the menu's
# layout and in this version of python3-xdg drops the merged submenus.
def entries(menu, path):
    for entry in menu.MenuEntries:
        if entry.Show is True:
            yield path, entry.DesktopEntry
    for submenu in menu.Submenus:
        if submenu.Show is True:
            yield from entries(submenu, path + [submenu.getName()])
menu = xdg.Menu.parse("/etc/xdg/menus/xfce-applications.menu")
found = [(p, e) for p, e in entries(menu, []) if e.getName() == "Quillora Vesta"]
assert found, "the game is not in the desktop's menu"
for path, entry in found:
    icon = xdg.IconTheme.getIconPath(entry.getIcon(), 16, "hicolor")
    print("menu:", " > ".join(path + [entry.getName()]), "| Exec:", entry.getExec(), "| icon:", icon)
    assert path == ["Games"], "the game is not under Games"
    assert icon and icon.startswith("/usr/share/icons/hicolor/"), "the icon is not installed"
EOF

# A private X server the chroot's desktop can reach through the socket.
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=":$(cat "$work/display")"
mkdir -p "$root/tmp/.X11-unix"
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix" && mounts+=("$root/tmp/.X11-unix")
inside install -d -o jugadora -m 700 /run/user/1000
as_player "rm -rf ~/.config/quillora-vesta; startxfce4 >/tmp/xfce-session.log 2>&1 &"
# Windows come and go while the session starts, which can fail a search
# halfway: ask again until one is there, for up to 30 s.
wait_for_window() {
    for _ in $(seq 60); do
        xdotool search --onlyvisible "$@" 2>/dev/null | head -n 1 | grep . && return 0
        sleep 0.5
    done
    return 1
}
wait_for_window --class xfce4-panel >/dev/null
sleep 3

# Applications > Games > Quillora Vesta, clicked as a player would: the
# panel's first button, the Games row, then the entry beside it.
xdotool mousemove 50 12 click 1
sleep 1.5
xdotool mousemove 60 171
sleep 1.5
import -window root "$out/menu-juegos.png"
xdotool mousemove 260 171 click 1
if ! wait_for_window --name '^Quillora Vesta$' >/dev/null; then
    echo "the menu entry did not start the game" >&2
    exit 1
fi
sleep 3
import -window root "$out/juego-iniciado.png"
echo "started from the menu: $(inside pgrep -a -u jugadora quillora-vesta)"

# A game alone, played on the rarest letters until the figure's face is
# drawn: the board's letters are in Quicksand, the face in Comic Neue.
# The Debian package draws them from the font packages' files, which the
# running program then has open.
game=$(inside pgrep -u jugadora -x quillora-vesta | head -n 1)
xdotool key 1
sleep 2
# The board opens with its theme shown, or waits for Enter to draw one.
theme() { xdotool search --onlyvisible --name '^EL TEMA ES:$' 2>/dev/null | head -n 1; }
[ -n "$(theme)" ] || xdotool key Return
if ! theme_window=$(wait_for_window --name '^EL TEMA ES:$'); then
    echo "the board did not show its theme" >&2
    exit 1
fi
xdotool windowactivate --sync "$theme_window" key Return
sleep 1
for letter in z x k w q j y v; do
    xdotool key "$letter"
    sleep 0.7
done
sleep 1
import -window root "$out/partida.png"
fonts=$(grep -o '/usr/share/fonts/.*' "/proc/$game/maps" | sort -u)
echo "fonts the game has open:"
for font in $fonts; do
    echo "  $font ($(inside dpkg -S "$font" | cut -d: -f1))"
done
for font in truetype/quicksand/Quicksand-Bold.ttf opentype/comic-neue/ComicNeue-Bold.otf; do
    grep -qx "/usr/share/fonts/$font" <<<"$fonts" ||
        { echo "the game does not draw with the installed $font" >&2; exit 1; }
done

# The manual page in the desktop's Spanish, and in English elsewhere.
page=$(as_player "MANWIDTH=80 MANPAGER=cat man 6 quillora-vesta 2>/dev/null")
grep -q '^NOMBRE' <<<"$page" || { echo "man 6 quillora-vesta does not read" >&2; exit 1; }
echo "man 6 quillora-vesta: $(grep -A1 '^NOMBRE' <<<"$page" | tail -n 1 | sed 's/^ *//')"
page=$(as_player "LANG=C.UTF-8 MANWIDTH=80 MANPAGER=cat man 6 quillora-vesta 2>/dev/null")
grep -q '^NAME' <<<"$page" || { echo "the English manual page does not read" >&2; exit 1; }
echo "in English: $(grep -A1 '^NAME' <<<"$page" | tail -n 1 | sed 's/^ *//')"
echo "screenshots in $out"
