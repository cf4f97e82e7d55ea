// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace quillora {

// Frames the current row of a list that has the focus, in the focus ring's
// colours: the row the arrows move and Space or Enter act on, which the
// game's list styles would otherwise leave unmarked or nearly so. It draws
// over what the list's own style drew, so palettes and style sheets stay
// as they were.
class CurrentRowDelegate final : public QStyledItemDelegate {
public:
    // Gives `view` the frame.
    static void mark(QAbstractItemView* view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    explicit CurrentRowDelegate(QObject* parent) : QStyledItemDelegate(parent) {}
};

} // namespace quillora
