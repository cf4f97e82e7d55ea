// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/StrikesAccessible.h"

#include "windows/board/StrikeStrip.h"

#include <QLabel>

namespace quillora {

namespace {

class MarkAccessible final : public PaintedPartAccessible<StrikeStrip> {
public:
    using PaintedPartAccessible::PaintedPartAccessible;

    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!m_view) {
            s.invalid = true;
            return s;
        }
        s.invisible = !m_view->isVisible();
        return s;
    }

private:
    QString name() const override { return m_view->spokenMark(m_part); }
    QString description() const override { return m_view->markTip(m_part).trimmed(); }
    QRect partRect() const override { return m_view->markRect(m_part); }
};

} // namespace

StrikesAccessible::StrikesAccessible(StrikeStrip* strip)
    : QAccessibleWidget(strip, QAccessible::Grouping) {}

StrikesAccessible::~StrikesAccessible() = default;

StrikeStrip* StrikesAccessible::strip() const {
    return static_cast<StrikeStrip*>(widget());
}

QAccessibleInterface* StrikesAccessible::child(int index) const {
    if (index == RoundState::kSlots) {
        return QAccessible::queryAccessibleInterface(strip()->correctionLabel());
    }
    return m_marks.get(index, [this, index] { return new MarkAccessible(strip(), index + 1); });
}

int StrikesAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (child && child->object() == strip()->correctionLabel()) {
        return RoundState::kSlots;
    }
    return m_marks.indexOf(child);
}

QAccessibleInterface* StrikesAccessible::childAt(int x, int y) const {
    const QPoint point = strip()->mapFromGlobal(QPoint(x, y));
    const QLabel* correction = strip()->correctionLabel();
    if (correction->isVisible() && !correction->text().isEmpty() &&
        correction->geometry().contains(point)) {
        return child(RoundState::kSlots);
    }
    const int slot = strip()->markAt(point);
    return slot > 0 ? child(slot - 1) : nullptr;
}

} // namespace quillora
