// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/Keyboard.h"
#include "windows/board/PaintedPartAccessible.h"

#include <QAccessibleWidget>

namespace quillora {

class KeyboardView;

// The on-screen keyboard as a screen reader finds it: its forty keys as push
// buttons, in the order they stand on the board, row by row, then the digit
// panel. A key the board does not show (tried, or under the digit panel) is
// there but invisible.
class KeyboardAccessible final : public QAccessibleWidget {
public:
    explicit KeyboardAccessible(KeyboardView* keyboard);
    ~KeyboardAccessible() override;

    // The key at child `index`, and back.
    static int keyOfChild(int index);
    static int childOfKey(int key);

    int childCount() const override { return kKeyCount; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

private:
    KeyboardView* keyboard() const;

    mutable PartInterfaces m_keys{kKeyCount};
};

} // namespace quillora
