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

// A label in one colour. The screen is the first thing the game shows, and
// style sheets would cost it several milliseconds of parsing and polishing
// before it can appear; a palette costs nothing.
QLabel* inkLabel(const QString& text, Rgb ink, double points, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(Fonts::display(points));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, qc(ink));
    label->setPalette(palette);
    return label;
}

// The screen's buttons are labels with a rounded ground: " Cerrar " is only
// an outline, filled while it is held down; the notice's buttons stand out
// in blue and turn green while pressed.
class StartButton final : public QLabel {
public:
    StartButton(const QString& text, bool outline, QWidget* parent)
        : QLabel(text, parent), m_outline(outline) {
        setAlignment(Qt::AlignCenter);
        setCursor(Qt::PointingHandCursor);
        setPressed(false);
    }

    void setPressed(bool pressed) {
        m_pressed = pressed;
        QPalette palette = this->palette();
        palette.setColor(QPalette::WindowText,
                         m_outline && !pressed ? qc(kDefaultBlue) : QColor(Qt::white));
        setPalette(palette);
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            const QColor ground = m_outline   ? qc(kDefaultBlue)
                                  : m_pressed ? qc(kGreenLamp)
                                              : qc(kDefaultBlue);
            painter.setPen(m_outline ? QPen(ground, 1) : Qt::NoPen);
            painter.setBrush(m_outline && !m_pressed ? QBrush(Qt::NoBrush) : QBrush(ground));
            painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius,
                                    kRadius);
        }
        QLabel::paintEvent(event);
    }

private:
    static constexpr double kRadius = 6;
    bool m_outline;
    bool m_pressed = false;
};

StartButton* noticeButton(const QString& text, int left, QWidget* parent) {
    auto* button = new StartButton(text, false, parent);
    button->setGeometry(px(left), px(kButtonTop), px(kButtonWidth), px(kButtonHeight));
    button->setFont(Fonts::display(11));
    return button;
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

    auto* title = inkLabel(QStringLiteral("Quillora Vesta"), kDefaultBlue, 30, this);
    title->setGeometry(px(450), px(600), px(kWidth - 900), px(900));
    auto* maker = inkLabel(QStringLiteral("Ondrel Works"), Rgb{110, 110, 110}, 11, this);
    maker->setGeometry(px(480), px(1500), px(4000), px(420));
    auto* sample = inkLabel(QStringLiteral("Muestra"), Rgb{180, 180, 180}, 11, this);
    sample->setGeometry(px(kWidth - 2400), px(1500), px(1950), px(420));
    sample->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    m_closeLabel = new StartButton(QStringLiteral(" Cerrar "), true, this);
    m_closeLabel->setGeometry(px(kWidth - 1440), px(120), px(1320), px(360));
    m_closeLabel->setFont(Fonts::display(9));
    listenTo(m_closeLabel);

    new FocusRing(this);

    m_timer = new QTimer(this);
    m_timer->setInterval(StartScreenModel::kTickMs);
    connect(m_timer, &QTimer::timeout, this, &StartScreen::tick);
    m_timer->start();
}

void StartScreen::listenTo(QLabel* button) {
    button->installEventFilter(this);
    new ButtonLike(
        button, [button] { return button->text().trimmed(); }, [this, button] { press(button); });
}

// The notice shows only on a machine without the board's font, so it is made
// when it is first wanted rather than before every start.
void StartScreen::buildNotice() {
    m_notice = new QWidget(this);
    m_notice->setGeometry(0, 0, width(), height());
    auto* text =
        inkLabel(QStringLiteral("La fuente \"Arial Rounded MT Bold\" no está instalada..."),
                 kRedLamp, 11, m_notice);
    text->setGeometry(px(450), px(2100), px(kWidth - 900), px(480));
    m_downloadButton = noticeButton(QStringLiteral("DESCARGAR"), 4500, m_notice);
    m_restartButton =
        noticeButton(QStringLiteral("REINICIAR"), StartScreenModel::kPointerAtRestart, m_notice);
    m_pointer = inkLabel(QStringLiteral("▼"), kRedLamp, 12, m_notice);
    AccessibleControl::hidden(m_pointer);
    for (QLabel* button : {m_downloadButton, m_restartButton}) {
        listenTo(button);
    }
    m_notice->show();
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
    if (m_model.noticeShown() && !m_notice) {
        buildNotice();
    }
    if (m_notice) {
        m_notice->setVisible(m_model.noticeShown());
        const int pointerLeft = m_model.downloaded() ? StartScreenModel::kPointerAtRestart : 4500;
        m_pointer->setGeometry(px(pointerLeft + kButtonWidth / 2 - 150), px(kButtonTop - 420),
                               px(300), px(400));
        m_pointer->setVisible(m_model.pointerShown());
    }
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
    static_cast<StartButton*>(label)->setPressed(pressed);
    if (!pressed) {
        press(label);
    }
    return true;
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
