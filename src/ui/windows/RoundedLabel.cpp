// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/RoundedLabel.h"

#include "look/Twips.h"
#include "platform/TwipScale.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

namespace quillora {

namespace {
constexpr int kRadiusTwips = 90;
} // namespace

RoundedLabel::RoundedLabel(QWidget* parent, const QString& text) : QLabel(text, parent) {}

void RoundedLabel::setColours(const QColor& panel, const QColor& text) {
    // The lamps change the panel after every letter and the ink hardly ever:
    // a new palette is resolved and sent to the label and its children, so it
    // is set only when the ink is new.
    if (palette().color(QPalette::WindowText) != text) {
        QPalette colours = palette();
        colours.setColor(QPalette::WindowText, text);
        setPalette(colours);
    } else if (panel == m_panel) {
        return;
    }
    m_panel = panel;
    update();
}

bool RoundedLabel::drawsPlainLine() {
    if (wordWrap() || textFormat() == Qt::RichText || indent() > 0 || margin() > 0 ||
        !styleSheet().isEmpty() || !pixmap().isNull()) {
        return false;
    }
    // Whether the text reads as one plain line is asked at every paint and
    // changes only with the text.
    const QString line = text();
    if (line != m_checkedText || textFormat() != m_checkedFormat) {
        m_checkedText = line;
        m_checkedFormat = textFormat();
        m_checkedPlain = !((textFormat() == Qt::AutoText && Qt::mightBeRichText(line)) ||
                           line.contains(u'\n') || line.contains(u'&'));
    }
    return m_checkedPlain;
}

void paintRoundedGround(QPainter& painter, const QRect& area, const QColor& colour,
                        TwipScale scale) {
    if (colour.alpha() > 0) {
        const int radius = scale.px(kRadiusTwips);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawRoundedRect(area, radius, radius);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
}

void RoundedLabel::paintGround(QPainter& painter) const {
    paintRoundedGround(painter, rect(), m_panel, TwipScale::of(this));
}

void RoundedLabel::paintLine(QPainter& painter) {
    const QString line = text();
    if (line.isEmpty()) {
        return;
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
}

const QPixmap& RoundedLabel::look() {
    const qreal ratio = devicePixelRatioF();
    const QColor ink = palette().color(foregroundRole());
    const QString line = text();
    for (const Look& kept : m_looks) {
        if (kept.panel == m_panel && kept.ink == ink && kept.text == line &&
            kept.alignment == alignment() && kept.font == font() &&
            kept.pixmap.deviceIndependentSize() == QSizeF(size()) &&
            kept.pixmap.devicePixelRatio() == ratio) {
            return kept.pixmap;
        }
    }
    // The oldest of the kept looks makes room for the new one, in its
    // pixmap when the size is the same: a new pixmap needs a new paint
    // engine, which costs more than the drawing.
    Look& drawn = m_looks[m_nextLook];
    m_nextLook = (m_nextLook + 1) % m_looks.size();
    if (drawn.pixmap.deviceIndependentSize() != QSizeF(size()) ||
        drawn.pixmap.devicePixelRatio() != ratio) {
        drawn.pixmap = QPixmap(size() * ratio);
        drawn.pixmap.setDevicePixelRatio(ratio);
    }
    drawn.text = line;
    drawn.panel = m_panel;
    drawn.ink = ink;
    drawn.alignment = alignment();
    drawn.font = font();
    drawn.pixmap.fill(Qt::transparent);
    QPainter painter(&drawn.pixmap);
    paintGround(painter);
    paintLine(painter);
    return drawn.pixmap;
}

void RoundedLabel::paintEvent(QPaintEvent* event) {
    if (!drawsPlainLine()) {
        QPainter ground(this);
        paintGround(ground);
        ground.end();
        QLabel::paintEvent(event);
        return;
    }
    if (m_panel.alpha() == 0) {
        // Without a ground there is only the text, whose layout is kept.
        QPainter p(this);
        paintLine(p);
        return;
    }
    const QPixmap& drawn = look();
    const QRect area = event->rect();
    const qreal ratio = drawn.devicePixelRatio();
    QPainter p(this);
    p.drawPixmap(area, drawn, QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio));
}

} // namespace quillora
