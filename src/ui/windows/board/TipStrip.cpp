// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/TipStrip.h"

#include "look/Twips.h"
#include "models/board/TipModel.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/QtColour.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
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

// The tip's text, laid out and drawn once into a picture: each step of the
// ticker then only copies pixels, with no text to shape again.
class TipText final : public QLabel {
public:
    using QLabel::QLabel;

    void forget() { m_picture = QPixmap(); }

protected:
    void paintEvent(QPaintEvent* event) override {
        const qreal ratio = devicePixelRatioF();
        if (m_picture.isNull() || m_picture.devicePixelRatio() != ratio) {
            m_picture = QPixmap(size() * ratio);
            m_picture.setDevicePixelRatio(ratio);
            m_picture.fill(palette().color(QPalette::Window));
            QPainter painter(&m_picture);
            painter.setFont(font());
            painter.setPen(palette().color(QPalette::WindowText));
            painter.drawText(rect(), static_cast<int>(alignment()), text());
        }
        QPainter(this).drawPixmap(
            event->rect(), m_picture,
            QRectF(QPointF(event->rect().topLeft()) * ratio, QSizeF(event->rect().size()) * ratio));
    }
    void resizeEvent(QResizeEvent* event) override {
        forget();
        QLabel::resizeEvent(event);
    }
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
            forget();
        }
        QLabel::changeEvent(event);
    }

private:
    QPixmap m_picture;
};
} // namespace

TipStrip::TipStrip(TipModel& model, QWidget* board) : RoundedLabel(board), m_model(model) {
    setObjectName(QStringLiteral("tipFrame"));
    placeInTwips(this, QRect(kLeft, kTop, TipModel::kWidthTwips, kHeight));
    setCursor(Qt::PointingHandCursor);
    m_tipLabel = new TipText(this);
    m_tipLabel->setObjectName(QStringLiteral("lblTip"));
    setScaledFont(m_tipLabel, Fonts::display(kTipPoints));
    m_tipLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // An opaque label is moved by copying what it already shows: each step
    // draws only the sliver that comes into view, and nothing behind it.
    m_tipLabel->setAutoFillBackground(true);

    m_tipTimer = new QTimer(this);
    m_tipTimer->setInterval(TipModel::kTickMs);
    connect(m_tipTimer, &QTimer::timeout, this, &TipStrip::tick);
    hide();
}

void TipStrip::paint(const QColor& gameColour) {
    setColours(gameColour, Qt::white);
    QPalette colours = m_tipLabel->palette();
    colours.setColor(QPalette::Window, gameColour);
    colours.setColor(QPalette::WindowText, Qt::white);
    m_tipLabel->setPalette(colours);
}

void TipStrip::sync() {
    const QString text = qs(m_model.text());
    const TwipScale scale = TwipScale::of(this);
    if (text != m_tipLabel->text() || scale.factor() != m_factor) {
        m_factor = scale.factor();
        m_tipLabel->setText(text);
        static_cast<TipText*>(m_tipLabel)->forget();
        const int width = m_tipLabel->fontMetrics().horizontalAdvance(text);
        m_tipLabel->setGeometry(0, scale.px(kInsetTwips), width,
                                scale.px(kHeight - 2 * kInsetTwips));
        // The ticker runs in twips, whatever the scale.
        m_model.setTextWidth(static_cast<int>(width * kTwipsPerPixel / m_factor + 0.5));
    }
    m_tipLabel->move(scale.px(m_model.left()), m_tipLabel->y());
    setVisible(m_model.shown());
    if (m_model.running() && !m_tipTimer->isActive()) {
        m_tipTimer->start();
    } else if (!m_model.running() && m_tipTimer->isActive()) {
        m_tipTimer->stop();
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
