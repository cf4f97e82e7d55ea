// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/RoundedLabel.h"

#include "look/Twips.h"

#include <QPainter>

namespace quillora {

namespace {
constexpr int kRadiusTwips = 90;
} // namespace

RoundedLabel::RoundedLabel(QWidget* parent, const QString& text) : QLabel(text, parent) {}

void RoundedLabel::setColours(const QColor& panel, const QColor& text) {
    if (panel == m_panel && palette().color(QPalette::WindowText) == text) {
        return;
    }
    m_panel = panel;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, text);
    setPalette(colours);
    update();
}

void RoundedLabel::paintEvent(QPaintEvent* event) {
    if (m_panel.alpha() > 0) {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(m_panel);
        p.drawRoundedRect(rect(), px(kRadiusTwips), px(kRadiusTwips));
    }
    QLabel::paintEvent(event);
}

} // namespace quillora
