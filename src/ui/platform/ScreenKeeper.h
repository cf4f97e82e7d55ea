// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMargins>
#include <QObject>
#include <QRect>

class QWidget;

namespace quillora {

// Keeps every window of the game where the desktop can show it. Each window
// the game places (centred, over the menu, beside the board) is checked as it
// opens: one the screen cannot hold at its place, as a board centred on a
// magnified screen would be, is moved so that it shows whole, or, larger than
// the screen, so that its title bar and left edge do.
class ScreenKeeper final : public QObject {
public:
    // Checks this window each time it shows. Each window has its own
    // keeper: the game watches its windows, not every event of the program.
    static void watch(QWidget& window);

    // Where a window's frame goes so that the area holds it.
    static QPoint fitted(const QRect& frame, const QRect& area);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit ScreenKeeper(QWidget& window);
    static void keepOnScreen(QWidget& window);

    // What the window system's frame adds, seen on the windows already
    // shown: a window that has never been shown has no frame yet.
    static QMargins s_frame;
};

} // namespace quillora
