// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/CurrentRowDelegate.h"

#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QAbstractItemView>
#include <QPainter>

namespace quillora {

namespace {
constexpr qreal kFrame = 2;
} // namespace

void CurrentRowDelegate::mark(QAbstractItemView* view) {
    view->setItemDelegate(new CurrentRowDelegate(view));
}

void CurrentRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!(option.state & QStyle::State_HasFocus)) {
        return;
    }
    // Dark on a plain row, yellow on a highlighted one.
    const bool selected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setPen(QPen(qc(selected ? kFocusBand : kFocusEdge), kFrame));
    painter->setBrush(Qt::NoBrush);
    const qreal in = kFrame / 2;
    painter->drawRect(QRectF(option.rect).adjusted(in, in, -in, -in));
    painter->restore();
}

} // namespace quillora
