// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/RoundState.h"
#include "windows/board/PaintedPartAccessible.h"

#include <QAccessibleWidget>

namespace quillora {

class StrikeStrip;

// The strike strip as a screen reader finds it: its eight painted marks as
// texts, in order, then the label that takes a strike back.
class StrikesAccessible final : public QAccessibleWidget {
public:
    explicit StrikesAccessible(StrikeStrip* strip);
    ~StrikesAccessible() override;

    int childCount() const override { return RoundState::kSlots + 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

private:
    StrikeStrip* strip() const;

    mutable PartInterfaces m_marks{RoundState::kSlots};
};

} // namespace quillora
