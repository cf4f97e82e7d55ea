// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/options/CheckPicture.h"

#include "look/Twips.h"

#include <QPainter>
#include <QPainterPath>

namespace quillora {

namespace {
constexpr int kPictureTwips = 210;
constexpr int kInsetTwips = 75;
constexpr int kRadiusTwips = 90;
} // namespace

CheckPicture::CheckPicture(const QString& caption, QWidget* parent) : QAbstractButton(parent) {
    // Checkable, so a screen reader hears a check box and whether it is ticked.
    setCheckable(true);
    setText(caption);
    setAccessibleName(QString(caption).remove(QLatin1Char('&')).trimmed());
    setCursor(Qt::PointingHandCursor);
}

void CheckPicture::setTicked(bool ticked) {
    if (ticked != isChecked()) {
        setChecked(ticked);
    }
}

void CheckPicture::setPanelColour(const QColor& panel) {
    if (panel != m_panel) {
        m_panel = panel;
        update();
    }
}

void CheckPicture::paintPicture(QPainter& p, const QRectF& r, bool ticked, const QColor& tick) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(120, 120, 120), 1));
    p.setBrush(Qt::white);
    p.drawRoundedRect(r.adjusted(0.5, 0.5, -0.5, -0.5), r.width() * 0.2, r.width() * 0.2);
    if (ticked) {
        QPainterPath mark;
        mark.moveTo(r.left() + r.width() * 0.22, r.top() + r.height() * 0.52);
        mark.lineTo(r.left() + r.width() * 0.42, r.top() + r.height() * 0.74);
        mark.lineTo(r.left() + r.width() * 0.80, r.top() + r.height() * 0.26);
        p.setPen(QPen(tick, r.width() * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(mark);
    }
    p.restore();
}

void CheckPicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(m_panel);
    p.drawRoundedRect(rect(), px(kRadiusTwips), px(kRadiusTwips));

    const int side = px(kPictureTwips);
    const QRectF picture(px(kInsetTwips), (height() - side) / 2.0, side, side);
    paintPicture(p, picture, isChecked(), m_panel.darker(140));

    p.setFont(font());
    p.setPen(Qt::white);
    const QRect text = rect().adjusted(static_cast<int>(picture.right()) + px(30), 0, 0, 0);
    p.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, this->text());
    if (hasFocus()) {
        p.setPen(QPen(QColor(255, 255, 255, 170), 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), px(kRadiusTwips),
                          px(kRadiusTwips));
    }
}

} // namespace quillora
