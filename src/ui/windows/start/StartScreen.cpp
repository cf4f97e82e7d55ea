// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/start/StartScreen.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "windows/AccessibleControl.h"
#include "windows/ButtonLike.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace quillora {

namespace {

constexpr int kWidth = 8700, kHeight = 3960;
constexpr int kLineLeft = 450, kLineTop = 2700;
constexpr Rgb kLineColour{0, 100, 220};
constexpr int kButtonTop = 3000, kButtonWidth = 1800, kButtonHeight = 480;

QLabel* buttonLabel(const QString& text, int left, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setGeometry(px(left), px(kButtonTop), px(kButtonWidth), px(kButtonHeight));
    label->setAlignment(Qt::AlignCenter);
    label->setFont(Fonts::display(11));
    label->setCursor(Qt::PointingHandCursor);
    return label;
}

} // namespace

StartScreen::StartScreen(SharedState& shared, WebLookUp& lookUp, bool fontAvailable,
                         QWidget* parent)
    : QWidget(parent), m_model(shared, fontAvailable), m_lookUp(lookUp) {
    setWindowTitle(QStringLiteral("Quillora Vesta"));
    setWindowFlag(Qt::FramelessWindowHint);
    setFixedSize(px(kWidth), px(kHeight));
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, qc(kNearWhite));
    setPalette(p);

    auto* title = new QLabel(QStringLiteral("Quillora Vesta"), this);
    title->setGeometry(px(450), px(600), px(kWidth - 900), px(900));
    title->setFont(Fonts::display(30));
    title->setStyleSheet(QStringLiteral("color: %1;").arg(css(kDefaultBlue)));
    auto* maker = new QLabel(QStringLiteral("Ondrel Works"), this);
    maker->setGeometry(px(480), px(1500), px(4000), px(420));
    maker->setFont(Fonts::display(11));
    maker->setStyleSheet(QStringLiteral("color: rgb(110,110,110);"));
    auto* sample = new QLabel(QStringLiteral("Muestra"), this);
    sample->setGeometry(px(kWidth - 2400), px(1500), px(1950), px(420));
    sample->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    sample->setFont(Fonts::display(11));
    sample->setStyleSheet(QStringLiteral("color: rgb(180,180,180);"));

    m_closeLabel = new QLabel(QStringLiteral(" Cerrar "), this);
    m_closeLabel->setGeometry(px(kWidth - 1440), px(120), px(1320), px(360));
    m_closeLabel->setAlignment(Qt::AlignCenter);
    m_closeLabel->setFont(Fonts::display(9));
    m_closeLabel->setCursor(Qt::PointingHandCursor);
    m_closeLabel->installEventFilter(this);

    m_notice = new QWidget(this);
    m_notice->setGeometry(0, 0, width(), height());
    m_notice->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    auto* text = new QLabel(
        QStringLiteral("La fuente \"Arial Rounded MT Bold\" no está instalada..."), m_notice);
    text->setGeometry(px(450), px(2100), px(kWidth - 900), px(480));
    text->setFont(Fonts::display(11));
    text->setStyleSheet(QStringLiteral("color: %1;").arg(css(kRedLamp)));
    m_downloadButton = buttonLabel(QStringLiteral("DESCARGAR"), 4500, m_notice);
    m_restartButton =
        buttonLabel(QStringLiteral("REINICIAR"), StartScreenModel::kPointerAtRestart, m_notice);
    m_pointer = new QLabel(QStringLiteral("▼"), m_notice);
    m_pointer->setFont(Fonts::display(12));
    m_pointer->setStyleSheet(QStringLiteral("color: %1;").arg(css(kRedLamp)));
    for (QLabel* button : {m_downloadButton, m_restartButton}) {
        button->installEventFilter(this);
    }
    m_notice->hide();
    for (QLabel* button : {m_downloadButton, m_restartButton, m_closeLabel}) {
        paintButton(button, false);
    }

    for (QLabel* button : {m_closeLabel, m_downloadButton, m_restartButton}) {
        new ButtonLike(
            button, [button] { return button->text().trimmed(); },
            [this, button] { press(button); });
    }
    AccessibleControl::hidden(m_pointer);
    new FocusRing(this);

    m_timer = new QTimer(this);
    m_timer->setInterval(StartScreenModel::kTickMs);
    connect(m_timer, &QTimer::timeout, this, &StartScreen::tick);
    m_timer->start();
}

void StartScreen::tick() {
    m_model.tick();
    update();
    follow();
}

void StartScreen::follow() {
    if (!m_model.timerRunning()) {
        m_timer->stop();
    }
    m_notice->setVisible(m_model.noticeShown());
    const int pointerLeft = m_model.downloaded() ? StartScreenModel::kPointerAtRestart : 4500;
    m_pointer->setGeometry(px(pointerLeft + kButtonWidth / 2 - 150), px(kButtonTop - 420), px(300),
                           px(400));
    m_pointer->setVisible(m_model.pointerShown());
    if (m_handedOver) {
        return;
    }
    using Outcome = StartScreenModel::Outcome;
    std::function<void()>* next = nullptr;
    switch (m_model.outcome()) {
    case Outcome::ShowMenu:
        next = &onMenu;
        break;
    case Outcome::Restart:
        next = &onRestart;
        break;
    case Outcome::Close:
        next = &onClose;
        break;
    case Outcome::Waiting:
        return;
    }
    m_handedOver = true;
    if (*next) {
        (*next)();
    }
}

bool StartScreen::eventFilter(QObject* watched, QEvent* event) {
    auto* label = qobject_cast<QLabel*>(watched);
    if (!label || (event->type() != QEvent::MouseButtonPress &&
                   event->type() != QEvent::MouseButtonRelease)) {
        return QWidget::eventFilter(watched, event);
    }
    // The release lets the button go and acts.
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    paintButton(label, pressed);
    if (!pressed) {
        press(label);
    }
    return true;
}

void StartScreen::paintButton(QLabel* button, bool pressed) {
    if (button == m_closeLabel) {
        // " Cerrar " is only an outline on the screen, filled while it is
        // held down.
        button->setStyleSheet(
            QStringLiteral("QLabel { color: %2; background: %3; border: 1px solid %1;"
                           " border-radius: 6px; }")
                .arg(css(kDefaultBlue), pressed ? QStringLiteral("white") : css(kDefaultBlue),
                     pressed ? css(kDefaultBlue) : QStringLiteral("transparent")));
        return;
    }
    // The notice's buttons stand out in blue and turn green while pressed.
    button->setStyleSheet(
        QStringLiteral("QLabel { color: white; background: %1; border-radius: 6px; }")
            .arg(css(pressed ? kGreenLamp : kDefaultBlue)));
}

void StartScreen::press(QLabel* button) {
    if (button == m_closeLabel) {
        m_model.close();
    } else if (button == m_restartButton) {
        m_model.restart();
    } else if (button == m_downloadButton) {
        m_model.download(m_lookUp);
    }
    follow();
}

void StartScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_D && m_model.noticeShown()) {
        m_model.download(m_lookUp);
        follow();
        return;
    }
    QWidget::keyPressEvent(event);
}

void StartScreen::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setPen(QPen(qc(kLineColour), 3));
    p.drawLine(px(kLineLeft), px(kLineTop), px(kLineLeft + m_model.lineLength()), px(kLineTop));
}

} // namespace quillora
