// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/AccessibleControl.h"

#include <QObject>

#include <functional>

class QWidget;

namespace quillora {

// A label or a painted tile that the player clicks, made a button for the
// keyboard and for screen readers as well: Tab reaches it, Space and Enter
// press it, and it is heard as a push button. Every other key goes on to the
// window, as it did before the control could take the focus.
class ButtonLike final : public QObject {
public:
    ButtonLike(QWidget* control, AccessibleControl::Text name, std::function<void()> press,
               Qt::FocusPolicy focus = Qt::StrongFocus);
    // The keys alone, for a control that a screen reader already hears as a
    // button some other way.
    ButtonLike(QWidget* control, std::function<void()> press, Qt::FocusPolicy focus);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_press;
};

} // namespace quillora
