// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

#include <thread>

namespace quillora {

// The board's rounded display font and the figure's handwritten face font.
// Where the preferred families are not installed, free look-alikes stand in
// for them: copies inside the program, or, in a build for a system that
// packages them, the installed Quicksand and Comic Neue.
class Fonts {
public:
    // Reading the system's font configuration takes several milliseconds,
    // and the start screen cannot draw a letter before it is read. Started on
    // a thread of its own before the application connects to the display, it
    // is done by the time the connection is; join it before the first font.
    static std::thread readSystemFontsAhead();
    // Finds the display font's look-alike once; call after the application
    // exists. The figure's face font follows when it is first wanted.
    static void findLookAlikes();
    static QString displayFamily();
    // The board's font is there: the preferred one or its look-alike.
    static bool displayAvailable();
    static QString faceFamily();
    // The display font at a size in points of the reference layout.
    static QFont display(double points, bool bold = true);
    static QFont face(double points);
};

} // namespace quillora
