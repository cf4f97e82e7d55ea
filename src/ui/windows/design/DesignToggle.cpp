// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/DesignToggle.h"

#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/QtColour.h"

#include <QPainter>

namespace quillora {

namespace {

constexpr int kLampSize = 12;
constexpr int kLampLeft = 7;
constexpr int kTextLeft = kLampLeft + kLampSize + 7;
constexpr Rgb kDisabledText{215, 225, 240};

} // namespace

DesignToggle::DesignToggle(const QString& caption, const QString& tooltip, QWidget* parent)
    : QAbstractButton(parent) {
    // The "&" of the caption gives the toggle its Alt shortcut.
    setText(caption);
    setToolTip(tooltip);
    setScaledFont(this, Fonts::display(8));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    // Checkable, so a screen reader hears a check box and whether it is lit.
    setCheckable(true);
    setAccessibleName(QString(caption).remove(QLatin1Char('&')));
}

void DesignToggle::setLook(bool enabled, bool lit, Rgb colour) {
    if (enabled == isEnabled() && lit == isChecked() && colour == m_colour) {
        return;
    }
    setEnabled(enabled);
    setChecked(lit);
    m_colour = colour;
    update();
}

void DesignToggle::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QColor face = qc(m_colour);
    if (!isEnabled()) {
        // A toggle the style has taken over fades, its rectangle still
        // telling what the style does.
        face = face.lighter(135);
    } else if (isDown()) {
        face = face.darker(115);
    }
    p.setPen(Qt::NoPen);
    p.setBrush(face);
    p.drawRoundedRect(QRectF(rect()), 5, 5);

    const QRectF lamp(kLampLeft + 0.5, (height() - kLampSize) / 2.0 + 0.5, kLampSize - 1,
                      kLampSize - 1);
    p.setPen(QPen(Qt::white, 1.5));
    p.setBrush(isChecked() ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
    p.drawRect(lamp);

    p.setPen(isEnabled() ? QColor(Qt::white) : qc(kDisabledText));
    const QRect textBox = rect().adjusted(kTextLeft, 0, -4, 0);
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
    p.drawText(textBox, flags, text());
    if (hasFocus()) {
        p.setPen(QPen(Qt::white, 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 4, 4);
    }
}

} // namespace quillora
