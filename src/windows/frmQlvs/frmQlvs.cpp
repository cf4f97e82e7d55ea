// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/frmQlvs.h"

#include "platform/Fonts.h"
#include "ports/Dialogs.h"
#include "windows/appearance/Twips.h"
#include "windows/frmQlvs/GallowsView.h"
#include "windows/frmQlvs/KeyboardView.h"
#include "windows/frmQlvs/PhraseView.h"
#include "words/Text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace quillora {

namespace {

QColor qc(Rgb c) {
    return QColor(c.red, c.green, c.blue);
}
QString css(Rgb c) {
    return QStringLiteral("rgb(%1,%2,%3)").arg(c.red).arg(c.green).arg(c.blue);
}
QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
}
QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// Where the board's own controls sit, in twips.
constexpr int kStatusLeft = 3000, kStatusTop = 300, kStatusWidth = 5040, kStatusHeight = 720;
constexpr int kThemeLeft = 8160, kThemeTop = 300, kThemeWidth = 3135, kThemeHeight = 720;
constexpr int kCounterLeft = 10200, kCounterTop = 1050, kCounterWidth = 1095, kCounterHeight = 360;
constexpr int kStrikesLeft = 3000, kStrikesTop = 3600;
constexpr int kStrikeWidth = 735, kStrikeHeight = 495, kStrikePitch = 720;
constexpr int kPlayLeft = 9000, kPlayTop = 3570, kPlayWidth = 2295, kPlayHeight = 615;
constexpr int kQueEsLeft = 240, kQueEsTop = 4380, kQueEsWidth = 2520, kQueEsHeight = 360;
constexpr int kWordLeft = 3000, kWordTop = 4290, kWordWidth = 8295, kWordHeight = 540;

const std::array<const char*, RoundState::kSlots> kStrikeTips{
    " Primer Strike. ", " Segundo Strike.", " Tercer Strike. ", " Cuarto Strike. ",
    " Quinto Strike. ", " Sexto Strike. ",  " Séptimo Strike.", " Octavo Strike. "};

} // namespace

frmQlvs::frmQlvs(SharedState& shared, Dialogs& dialogs, Random& random, QWidget* parent)
    : QWidget(parent), m_model(shared, dialogs, random) {
    setWindowTitle(QString::fromUtf8(kAppTitle.data(), static_cast<int>(kAppTitle.size())));
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    buildControls();

    m_tmrSusp = new QTimer(this);
    m_tmrSusp->setInterval(QlvsModel::kStatusTickMs);
    connect(m_tmrSusp, &QTimer::timeout, this, [this] {
        m_model.round().tickStatus();
        m_lblGame->setText(qs(m_model.round().status()));
    });
    m_tmrSusp->start();

    m_tmrStrike = new QTimer(this);
    m_tmrStrike->setInterval(QlvsModel::kLampTickMs);
    connect(m_tmrStrike, &QTimer::timeout, this, [this] {
        m_model.round().tickLamp();
        sync();
    });

    m_tmrSound = new QTimer(this);
    m_tmrSound->setInterval(PendingSound::kTickMs);
    connect(m_tmrSound, &QTimer::timeout, this, [this] {
        m_model.round().pendingSound().tick();
        syncTimers();
    });

    m_tmrOpen = new QTimer(this);
    m_tmrOpen->setInterval(QlvsModel::kOpenTickMs);
    connect(m_tmrOpen, &QTimer::timeout, this, [this] {
        m_model.tickOpen();
        sync();
    });

    sync();
}

frmQlvs::~frmQlvs() = default;

void frmQlvs::buildControls() {
    m_gallows = new GallowsView(m_model.round().figure(), this);
    m_phrase = new PhraseView(m_model, this);

    m_lblGame = new QLabel(this);
    m_lblGame->setGeometry(twipRect(kStatusLeft, kStatusTop, kStatusWidth, kStatusHeight));
    m_lblGame->setAlignment(Qt::AlignCenter);
    m_lblGame->setFont(Fonts::display(18));

    auto* themeCaption = new QLabel(QStringLiteral("Tema"), this);
    themeCaption->setObjectName(QStringLiteral("shpTheme"));
    themeCaption->setGeometry(twipRect(kThemeLeft, kThemeTop, kThemeWidth, kThemeHeight));
    themeCaption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    themeCaption->setFont(Fonts::display(7));
    m_lblTheme = new QLabel(this);
    m_lblTheme->setGeometry(
        twipRect(kThemeLeft + 60, kThemeTop + 210, kThemeWidth - 120, kThemeHeight - 240));
    m_lblTheme->setAlignment(Qt::AlignCenter);
    m_lblTheme->setFont(Fonts::display(11));
    m_lblTheme->setToolTip(QStringLiteral(" Tema de la frase. "));

    m_lblCont = new QLabel(QStringLiteral("XX/YY"), this);
    m_lblCont->setGeometry(twipRect(kCounterLeft, kCounterTop, kCounterWidth, kCounterHeight));
    m_lblCont->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_lblCont->setFont(Fonts::display(12));
    m_lblCont->setToolTip(QStringLiteral(" Letras reveladas. "));

    // The strike marks sit on a strip whose lines take the shade.
    m_frmeStrikes = new QWidget(this);
    m_frmeStrikes->setGeometry(twipRect(kStrikesLeft - 60, kStrikesTop - 60,
                                        kStrikePitch * 7 + kStrikeWidth + 120,
                                        kStrikeHeight + 120));
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        auto* label = new QLabel(this);
        label->setGeometry(twipRect(kStrikesLeft + kStrikePitch * (slot - 1), kStrikesTop,
                                    kStrikeWidth, kStrikeHeight));
        label->setAlignment(Qt::AlignCenter);
        label->setFont(Fonts::display(14));
        label->setToolTip(QString::fromUtf8(kStrikeTips[static_cast<std::size_t>(slot - 1)]));
        m_lblStrike[static_cast<std::size_t>(slot - 1)] = label;
    }
    m_lblQuit = new QLabel(this);
    m_lblQuit->setGeometry(m_lblStrike.back()->geometry());
    m_lblQuit->setAlignment(Qt::AlignCenter);
    m_lblQuit->setFont(Fonts::display(16));
    m_lblQuit->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    m_lblQuit->setCursor(Qt::PointingHandCursor);
    m_lblQuit->setMouseTracking(true);
    m_lblQuit->installEventFilter(this);

    m_cmdGame = new QPushButton(this);
    m_cmdGame->setGeometry(twipRect(kPlayLeft, kPlayTop, kPlayWidth, kPlayHeight));
    m_cmdGame->setFocusPolicy(Qt::NoFocus);
    m_cmdGame->setFont(Fonts::display(13));
    m_cmdGame->setCursor(Qt::PointingHandCursor);
    connect(m_cmdGame, &QPushButton::clicked, this, &frmQlvs::playPressed);

    m_lblQueEs = new QLabel(QStringLiteral("¿Qué es eso?"), this);
    m_lblQueEs->setGeometry(twipRect(kQueEsLeft, kQueEsTop, kQueEsWidth, kQueEsHeight));
    m_lblQueEs->setAlignment(Qt::AlignCenter);
    m_lblQueEs->setFont(Fonts::display(10));

    m_frmeWord = new QWidget(this);
    m_frmeWord->setObjectName(QStringLiteral("frmeWord"));
    m_frmeWord->setGeometry(twipRect(kWordLeft, kWordTop, kWordWidth, kWordHeight));
    m_frmeWord->setAttribute(Qt::WA_StyledBackground);
    m_lblWordPrompt = new QLabel(QStringLiteral(" Introduzca Frase a Adivinar "), m_frmeWord);
    m_lblWordPrompt->setGeometry(px(60), px(75), px(3000), px(390));
    m_lblWordPrompt->setFont(Fonts::display(9));
    m_txtWord = new QLineEdit(m_frmeWord);
    m_txtWord->setGeometry(px(3060), px(75), px(4320), px(390));
    m_txtWord->setFont(Fonts::display(11));
    m_txtWord->installEventFilter(this);
    connect(m_txtWord, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_model.round().setAnswerBoxText(text.toStdString());
        m_cmdOk->setEnabled(m_model.round().answerOkEnabled());
    });
    m_cmdOk = new QPushButton(QStringLiteral("OK"), m_frmeWord);
    m_cmdOk->setGeometry(px(7470), px(60), px(765), px(420));
    m_cmdOk->setFocusPolicy(Qt::NoFocus);
    m_cmdOk->setFont(Fonts::display(10));
    connect(m_cmdOk, &QPushButton::clicked, this, &frmQlvs::okPressed);

    m_keyboard = new KeyboardView(
        m_model, [this] { keyboardChanged(); }, this);
}

void frmQlvs::paintPanels() {
    const LampColours lamp = m_model.lampColours();
    const Rgb game = m_model.gameColour();

    QPalette windowPalette = palette();
    windowPalette.setColor(QPalette::Window, qc(m_model.background()));
    setPalette(windowPalette);

    const QString lampPanel = QStringLiteral("background: %1; color: white; border-radius: %2px;")
                                  .arg(css(lamp.light))
                                  .arg(px(90));
    m_lblGame->setStyleSheet(lampPanel);
    for (QLabel* label : m_lblStrike) {
        label->setStyleSheet(lampPanel);
    }
    findChild<QLabel*>(QStringLiteral("shpTheme"))->setStyleSheet(lampPanel);
    m_lblTheme->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    m_lblCont->setStyleSheet(
        QStringLiteral("color: %1; background: transparent;").arg(css(lamp.dark)));
    m_frmeStrikes->setStyleSheet(
        QStringLiteral(
            "background: transparent; border-top: 2px solid %1; border-bottom: 2px solid %1;")
            .arg(css(lamp.dark)));
    m_frmeStrikes->setAttribute(Qt::WA_StyledBackground);
    m_lblQueEs->setStyleSheet(
        QStringLiteral("color: %1; background: transparent; text-decoration: underline;")
            .arg(css(m_model.shade())));
    m_frmeWord->setStyleSheet(QStringLiteral("#frmeWord { background: %1; border-radius: %2px; }"
                                             "QLabel { color: white; }")
                                  .arg(css(game))
                                  .arg(px(90)));
    const Rgb shade = m_model.shade();
    m_cmdGame->setStyleSheet(
        QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                       " border-radius: %3px; }"
                       "QPushButton:hover { background: %2; }"
                       "QPushButton:pressed { background: %4; }")
            .arg(css(game), css(shade))
            .arg(px(120))
            .arg(css(kGreenLamp)));
}

void frmQlvs::sync() {
    const Round& round = m_model.round();
    paintPanels();

    m_lblGame->setText(qs(round.status()));
    m_lblTheme->setText(qs(round.themeLabel()));
    m_lblCont->setText(qs(round.board().counterText()));
    m_lblCont->setVisible(round.counterVisible());
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        strikeLabel(slot)->setText(qs(round.state().slot(slot)));
    }
    m_lblQuit->setText(qs(m_model.quitCaption()));
    m_lblQuit->setToolTip(qs(m_model.quitTooltip()));
    m_lblQuit->raise();
    m_cmdGame->setText(qs(round.playCaption()));
    m_lblQueEs->setVisible(round.queEsEsoVisible());

    const bool wasOpen = m_frmeWord->isVisible();
    m_frmeWord->setVisible(round.answerBoxOpen());
    const QString boxText = qs(round.answerBoxText());
    if (m_txtWord->text() != boxText) {
        m_txtWord->setText(boxText);
    }
    m_cmdOk->setEnabled(round.answerOkEnabled());
    if (round.answerBoxOpen() && !wasOpen) {
        m_txtWord->setFocus();
    } else if (!round.answerBoxOpen() && wasOpen) {
        setFocus();
    }

    m_keyboard->setVisible(m_model.keyboardShown());
    m_keyboard->update();
    m_phrase->update();
    m_gallows->update();
    setFixedSize(px(QlvsModel::kWidthTwips), px(m_model.heightTwips()));
    syncTimers();
}

void frmQlvs::syncTimers() {
    auto follow = [](QTimer* timer, bool running) {
        if (running && !timer->isActive()) {
            timer->start();
        } else if (!running && timer->isActive()) {
            timer->stop();
        }
    };
    follow(m_tmrStrike, m_model.round().lampTimerRunning());
    follow(m_tmrSound, m_model.round().pendingSound().timerRunning());
    follow(m_tmrOpen, m_model.openTimerRunning());
}

void frmQlvs::playPressed() {
    m_model.round().cmdGame();
    sync();
}

void frmQlvs::okPressed() {
    m_model.round().setAnswerBoxText(m_txtWord->text().toStdString());
    const bool answered = m_model.round().cmdOk();
    sync();
    if (!answered && m_model.round().answerBoxOpen()) {
        m_txtWord->setFocus();
        m_txtWord->end(false);
    }
}

void frmQlvs::keyboardChanged() {
    m_lblQuit->setText(qs(m_model.quitCaption()));
    m_lblQuit->setToolTip(qs(m_model.quitTooltip()));
    sync();
}

void frmQlvs::keyPressEvent(QKeyEvent* event) {
    using WindowKey = QlvsModel::WindowKey;
    switch (event->key()) {
    case Qt::Key_Delete:
        m_model.keyTyped(WindowKey::Delete);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_model.keyTyped(WindowKey::Enter);
        break;
    case Qt::Key_Escape:
        m_model.keyTyped(WindowKey::Escape);
        break;
    default: {
        const std::u32string text = event->text().toStdU32String();
        if (text.size() != 1) {
            QWidget::keyPressEvent(event);
            return;
        }
        m_model.keyTyped(WindowKey::Character, text.front());
        break;
    }
    }
    sync();
}

bool frmQlvs::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_lblQuit) {
        if (event->type() == QEvent::Enter || event->type() == QEvent::MouseMove) {
            m_model.hoverQuit();
            m_lblQuit->setText(qs(m_model.quitCaption()));
            m_lblQuit->setToolTip(qs(m_model.quitTooltip()));
        } else if (event->type() == QEvent::MouseButtonRelease) {
            m_model.round().eBackStrike();
            m_model.ColorFall();
            sync();
            return true;
        }
        return false;
    }
    if (watched == m_txtWord && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (m_cmdOk->isEnabled()) {
                okPressed();
            }
            return true;
        }
        const std::u32string text = key->text().toStdU32String();
        if (text == U"!") {
            m_model.round().BotonRespuesta();
            sync();
            return true;
        }
        if (text.size() == 1 && text.front() >= U' ' &&
            Verificar_Tecla(static_cast<int>(text.front()), !m_txtWord->text().isEmpty()) == 0) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillora
