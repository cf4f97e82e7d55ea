#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Prints the game's windows as a screen reader finds them on the desktop's
# accessibility bus (AT-SPI): one line per object, its role, name,
# description and the states that matter to a listener.
#
# The distribution's python3 carries pyatspi, hence the fixed interpreter.
#
# Usage, in the D-Bus session the game runs in (python3-pyatspi and
# at-spi2-core installed):
#   QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 ./build/src/quillora-vesta &
#   scripts/a11y-tree.py                  # the whole tree
#   scripts/a11y-tree.py --shown          # only what is on the screen
#   scripts/a11y-tree.py --listen 10      # then the changes announced for 10 s
#   scripts/a11y-tree.py --secret VACA    # fails when any text holds VACA

import argparse
import sys

import pyatspi
from gi.repository import GLib


def states_of(node):
    states = node.getState()
    marks = []
    if not states.contains(pyatspi.STATE_VISIBLE) or not states.contains(pyatspi.STATE_SHOWING):
        marks.append("oculto")
    if not states.contains(pyatspi.STATE_ENABLED):
        marks.append("inactivo")
    if states.contains(pyatspi.STATE_FOCUSED):
        marks.append("foco")
    return marks


def texts_of(node):
    texts = [node.name or "", node.description or ""]
    try:
        text = node.queryText()
        texts.append(text.getText(0, text.characterCount))
    except NotImplementedError:
        pass
    try:
        texts.append(str(node.queryValue().currentValue))
    except NotImplementedError:
        pass
    return texts


def walk(node, depth, args, found):
    if node is None:
        return
    marks = states_of(node)
    if args.shown and "oculto" in marks:
        return
    if args.secret:
        for text in texts_of(node):
            if args.secret.lower() in text.lower():
                found.append(f"{node.getRoleName()} {node.name!r}: {text!r}")
    line = f"{'  ' * depth}{node.getRoleName()} {node.name!r}"
    if node.description:
        line += f" ({node.description})"
    contents = [text for text in texts_of(node)[2:] if text and text != node.name]
    if contents:
        line += f" = {' | '.join(contents)!r}"
    if marks:
        line += f" [{', '.join(marks)}]"
    print(line)
    for i in range(node.childCount):
        walk(node.getChildAtIndex(i), depth + 1, args, found)


def announce(event):
    source = event.source
    line = f"{event.type}: {source.getRoleName()} {source.name!r}"
    if source.description:
        line += f" ({source.description})"
    print(line, flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--app", default="quillora-vesta", help="the application's name on the bus")
    parser.add_argument("--shown", action="store_true", help="leave out hidden objects")
    parser.add_argument("--listen", type=int, default=0, metavar="SECONDS",
                        help="print the changes announced for this long")
    parser.add_argument("--secret", help="fail when any text of the tree holds this")
    args = parser.parse_args()

    desktop = pyatspi.Registry.getDesktop(0)
    apps = [desktop.getChildAtIndex(i) for i in range(desktop.childCount)]
    apps = [app for app in apps if app is not None and app.name == args.app]
    if not apps:
        sys.exit(f"no application named {args.app!r} on the accessibility bus")
    found = []
    for app in apps:
        walk(app, 0, args, found)

    if args.listen:
        pyatspi.Registry.registerEventListener(
            announce, "object:property-change:accessible-name",
            "object:property-change:accessible-description", "object:state-changed:showing")
        GLib.timeout_add_seconds(args.listen, pyatspi.Registry.stop)
        pyatspi.Registry.start()

    if found:
        print("\nTexts that hold the secret:", *found, sep="\n  ")
        sys.exit(1)


if __name__ == "__main__":
    main()
