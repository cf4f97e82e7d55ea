// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <QList>
#include <QPointer>
#include <QWidget>

namespace quillora {

// The ring's colours: a yellow band between dark edges. Lists frame their
// current row in them too (CurrentRowDelegate).
inline constexpr Rgb kFocusBand{255, 205, 0};
inline constexpr Rgb kFocusEdge{25, 25, 25};

// The mark around the control that has the keyboard's focus. The windows
// paint their controls in the game colour, with style sheets and pictures
// that leave Qt's own focus frame out or too faint to find, so one ring, the
// same in every window and dark and yellow so it shows on any colour, is
// drawn over whatever control has the focus. The window itself holding the
// focus is marked by nothing.
class FocusRing final : public QWidget {
public:
    explicit FocusRing(QWidget* window);

    // The ring of `window`, if it has one.
    static FocusRing* of(const QWidget* window);

    // The control the ring stands around, or none while it is hidden.
    QWidget* target() const { return isVisible() ? m_target.data() : nullptr; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* focus);
    void place();

    QWidget* m_window;
    QPointer<QWidget> m_target;
    // The target and the widgets it sits in, whose moves move the ring.
    QList<QPointer<QWidget>> m_watched;
};

} // namespace quillora
