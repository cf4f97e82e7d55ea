// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/RoundedLabel.h"

#include "look/Twips.h"

#include <QPainter>
#include <QStyle>

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

bool RoundedLabel::paintLine(QPainter& painter) {
    const QString line = text();
    if (line.isEmpty()) {
        return true;
    }
    if (wordWrap() || textFormat() == Qt::RichText ||
        (textFormat() == Qt::AutoText && Qt::mightBeRichText(line)) || line.contains(u'\n') ||
        line.contains(u'&') || !pixmap().isNull() || !styleSheet().isEmpty() || indent() > 0 ||
        margin() > 0) {
        return false;
    }
    if (m_line.text() != line || m_lineFont != font()) {
        m_line.setText(line);
        m_line.setTextFormat(Qt::PlainText);
        m_lineFont = font();
        m_line.prepare(QTransform(), m_lineFont);
    }
    const QRect box = contentsRect();
    const QSizeF size = m_line.size();
    const Qt::Alignment align = QStyle::visualAlignment(layoutDirection(), alignment());
    qreal x = box.left();
    if (align & Qt::AlignRight) {
        x = box.right() + 1 - size.width();
    } else if (align & Qt::AlignHCenter) {
        x = box.left() + (box.width() - size.width()) / 2;
    }
    qreal y = box.top() + (box.height() - size.height()) / 2;
    if (align & Qt::AlignTop) {
        y = box.top();
    } else if (align & Qt::AlignBottom) {
        y = box.bottom() + 1 - size.height();
    }
    painter.setFont(m_lineFont);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawStaticText(QPointF(x, y), m_line);
    return true;
}

void RoundedLabel::paintEvent(QPaintEvent* event) {
    QPainter p(this);
    if (m_panel.alpha() > 0) {
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(m_panel);
        p.drawRoundedRect(rect(), px(kRadiusTwips), px(kRadiusTwips));
        p.setRenderHint(QPainter::Antialiasing, false);
    }
    if (!paintLine(p)) {
        p.end();
        QLabel::paintEvent(event);
    }
}

} // namespace quillora
