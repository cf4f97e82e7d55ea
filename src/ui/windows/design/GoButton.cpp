// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/GoButton.h"

#include "windows/QtColour.h"

#include <QPainter>
#include <QPainterPath>

namespace quillora {

namespace {

// The pictures are drawn on a grid of 20 by 20.
constexpr qreal kGrid = 20;

} // namespace

GoButton::GoButton(QWidget* parent) : QAbstractButton(parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void GoButton::setLook(bool go, Rgb colour) {
    if (go == m_go && colour == m_colour) {
        return;
    }
    m_go = go;
    m_colour = colour;
    update();
}

void GoButton::paintArrow(QPainter& p, QRectF box, bool go) {
    p.save();
    p.translate(box.topLeft());
    p.scale(box.width() / kGrid, box.height() / kGrid);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    QPainterPath head;
    if (go) {
        // Straight on, to the right.
        p.drawLine(QPointF(4, 10), QPointF(15, 10));
        head.moveTo(10.5, 5);
        head.lineTo(16, 10);
        head.lineTo(10.5, 15);
    } else {
        // Round again: most of a circle, its head at the top.
        p.drawArc(QRectF(4, 4, 12, 12), 60 * 16, 290 * 16);
        head.moveTo(9.5, 1.5);
        head.lineTo(13.5, 4.6);
        head.lineTo(9.5, 7.8);
    }
    p.drawPath(head);
    p.restore();
}

void GoButton::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor face = isDown() ? qc(m_colour).darker(115) : qc(m_colour);
    p.setPen(Qt::NoPen);
    p.setBrush(face);
    p.drawRoundedRect(QRectF(rect()), 4, 4);
    const qreal side = qMin(width(), height()) * 0.8;
    paintArrow(p, QRectF((width() - side) / 2, (height() - side) / 2, side, side), m_go);
}

} // namespace quillora
