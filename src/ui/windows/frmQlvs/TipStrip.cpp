// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/TipStrip.h"

#include "look/Twips.h"
#include "models/frmQlvs/TipModel.h"
#include "platform/Fonts.h"
#include "windows/QtColour.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>

namespace quillora {

namespace {
// Under the strikes, level with "¿Qué es eso?"; the answer box, when it
// opens, lies over it.
constexpr int kLeft = 3000, kTop = 4335, kHeight = 450;
// The text runs between the strip's rounded corners, so its own square
// ground never shows outside them.
constexpr int kInsetTwips = 90;
constexpr double kTipPoints = 10;
} // namespace

TipStrip::TipStrip(TipModel& model, QWidget* board) : RoundedLabel(board), m_model(model) {
    setObjectName(QStringLiteral("frmeTip"));
    setGeometry(px(kLeft), px(kTop), px(TipModel::kWidthTwips), px(kHeight));
    setCursor(Qt::PointingHandCursor);
    m_lblTip = new QLabel(this);
    m_lblTip->setObjectName(QStringLiteral("lblTip"));
    m_lblTip->setFont(Fonts::display(kTipPoints));
    m_lblTip->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // An opaque label is moved by copying what it already shows: each step
    // draws only the sliver that comes into view, and nothing behind it.
    m_lblTip->setAutoFillBackground(true);
    m_lblTip->setGeometry(0, px(kInsetTwips), 0, px(kHeight - 2 * kInsetTwips));
    m_tmrTip = new QTimer(this);
    m_tmrTip->setInterval(TipModel::kTickMs);
    connect(m_tmrTip, &QTimer::timeout, this, &TipStrip::tick);
    hide();
}

void TipStrip::paint(const QColor& gameColour) {
    setColours(gameColour, Qt::white);
    QPalette colours = m_lblTip->palette();
    colours.setColor(QPalette::Window, gameColour);
    colours.setColor(QPalette::WindowText, Qt::white);
    m_lblTip->setPalette(colours);
}

void TipStrip::sync() {
    const QString text = qs(m_model.text());
    if (text != m_lblTip->text()) {
        m_lblTip->setText(text);
        const int width = m_lblTip->fontMetrics().horizontalAdvance(text);
        m_lblTip->resize(width, m_lblTip->height());
        m_model.setTextWidth(width * kTwipsPerPixel);
    }
    m_lblTip->move(px(m_model.left()), m_lblTip->y());
    setVisible(m_model.shown());
    if (m_model.running() && !m_tmrTip->isActive()) {
        m_tmrTip->start();
    } else if (!m_model.running() && m_tmrTip->isActive()) {
        m_tmrTip->stop();
    }
}

void TipStrip::tick() {
    m_model.tick();
    sync();
}

void TipStrip::mousePressEvent(QMouseEvent* event) {
    // A click on the text comes here too, as the label leaves it; the other
    // buttons go on to the board, whose menu the right one opens.
    if (event->button() != Qt::LeftButton) {
        RoundedLabel::mousePressEvent(event);
        return;
    }
    m_model.stop();
    sync();
    event->accept();
}

} // namespace quillora
