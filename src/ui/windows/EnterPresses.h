// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace quillora {

// Enter presses the button that has the focus, as Space does. Qt leaves
// Enter to the default button of a dialog, and in a window that is no
// dialog it would fall through the focused button to nothing.
class EnterPresses final : public QObject {
public:
    explicit EnterPresses(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillora
