// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/frmQlvs.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "ports/Dialogs.h"
#include "windows/QtColour.h"
#include "windows/frmNames/frmNames.h"
#include "windows/frmQlvs/GallowsView.h"
#include "windows/frmQlvs/KeyboardView.h"
#include "windows/frmQlvs/PhraseView.h"
#include "windows/frmQlvs/SessionPanel.h"
#include "windows/frmWord1/frmWord1.h"
#include "windows/frmWord2/frmWord2.h"
#include "words/Text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>

namespace quillora {

namespace {

QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
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
constexpr int kScoreLeft = 120, kScoreTop = 60, kScoreWidth = 2415, kScoreHeight = 720;
constexpr int kAutoLeft = 2610, kAutoTop = 345, kAutoSize = 330;
constexpr int kCopyLeft = 2130, kCopyTop = 3630, kCopyWidth = 780, kCopyHeight = 435;

const std::array<const char*, RoundState::kSlots> kStrikeTips{
    " Primer Strike. ", " Segundo Strike.", " Tercer Strike. ", " Cuarto Strike. ",
    " Quinto Strike. ", " Sexto Strike. ",  " Séptimo Strike.", " Octavo Strike. "};

} // namespace

frmQlvs::frmQlvs(SharedState& shared, Dialogs& dialogs, Random& random, QWidget* parent)
    : QWidget(parent), m_model(shared, dialogs, random) {
    setWindowTitle(QString::fromUtf8(kAppTitle.data(), static_cast<int>(kAppTitle.size())));
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setAcceptDrops(true);
    m_model.load();
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
        m_model.tickSound();
        syncTimers();
    });

    m_tmrScore = new QTimer(this);
    m_tmrScore->setInterval(QlvsModel::kScoreTickMs);
    connect(m_tmrScore, &QTimer::timeout, this, [this] {
        m_model.tickScore();
        m_lblScore->setText(qs(m_model.scoring().scoreText()));
        m_cmdGame->setEnabled(m_model.scoring().playEnabled());
        syncTimers();
    });

    // The session panel's slide and its list's drop share the 10 ms beat.
    m_tmrKey = new QTimer(this);
    m_tmrKey->setInterval(SessionPanelModel::kTickMs);
    connect(m_tmrKey, &QTimer::timeout, this, [this] {
        m_model.panel().tick();
        sync();
    });
    m_tmrMenu = new QTimer(this);
    m_tmrMenu->setInterval(SessionPanelModel::kTickMs);
    connect(m_tmrMenu, &QTimer::timeout, this, [this] {
        m_model.panel().tickList();
        sync();
    });

    m_tmrOpen = new QTimer(this);
    m_tmrOpen->setInterval(QlvsModel::kOpenTickMs);
    connect(m_tmrOpen, &QTimer::timeout, this, [this] {
        m_model.tickOpen();
        sync();
    });

    m_tmrTop = new QTimer(this);
    m_tmrTop->setInterval(QlvsModel::kOpenTickMs);
    connect(m_tmrTop, &QTimer::timeout, this, [this] {
        move(x(), y() - px(m_model.tickTop()));
        syncTimers();
    });

    // A game with friends starts with their names.
    m_tmrNames = new QTimer(this);
    m_tmrNames->setSingleShot(true);
    m_tmrNames->setInterval(500);
    connect(m_tmrNames, &QTimer::timeout, this, [this] {
        if (m_model.namesAtStart()) {
            eNames();
        }
    });
    m_tmrNames->start();

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
    m_cmdGame->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_cmdGame, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildPlayMenu()->popup(m_cmdGame->mapToGlobal(at)); });

    // The small twin of JUGAR: it plays too, and keys typed on it are guesses.
    m_cmdCopy = new QPushButton(QStringLiteral("JUGAR"), this);
    m_cmdCopy->setGeometry(twipRect(kCopyLeft, kCopyTop, kCopyWidth, kCopyHeight));
    m_cmdCopy->setFont(Fonts::display(7));
    m_cmdCopy->setCursor(Qt::PointingHandCursor);
    m_cmdCopy->setFocusPolicy(Qt::NoFocus);
    connect(m_cmdCopy, &QPushButton::clicked, this, &frmQlvs::playPressed);

    m_lblRestore = new QLabel(this);
    m_lblRestore->setGeometry(twipRect(kPlayLeft, kPlayTop, kPlayWidth, kPlayHeight));
    m_lblRestore->setCursor(Qt::PointingHandCursor);
    m_lblRestore->installEventFilter(this);

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

    m_frmeScore = new QWidget(this);
    m_frmeScore->setObjectName(QStringLiteral("frmeScore"));
    m_frmeScore->setAttribute(Qt::WA_StyledBackground);
    m_frmeScore->setGeometry(twipRect(kScoreLeft, kScoreTop, kScoreWidth, kScoreHeight));
    auto* scoreCaption = new QLabel(QStringLiteral(" Puntos "), m_frmeScore);
    scoreCaption->setGeometry(0, px(15), px(kScoreWidth), px(210));
    scoreCaption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    scoreCaption->setFont(Fonts::display(7));
    m_lblScore = new QLabel(m_frmeScore);
    m_lblScore->setGeometry(0, px(210), px(kScoreWidth), px(kScoreHeight - 240));
    m_lblScore->setAlignment(Qt::AlignCenter);
    m_lblScore->setFont(Fonts::display(14));

    m_frmePlayer = new QWidget(this);
    m_frmePlayer->setObjectName(QStringLiteral("frmePlayer"));
    m_frmePlayer->setAttribute(Qt::WA_StyledBackground);
    m_frmePlayer->setGeometry(twipRect(kScoreLeft, kScoreTop, kScoreWidth, kScoreHeight));
    auto* playerCaption = new QLabel(QStringLiteral(" Turno "), m_frmePlayer);
    playerCaption->setGeometry(0, px(15), px(kScoreWidth), px(210));
    playerCaption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    playerCaption->setFont(Fonts::display(7));
    m_lblPlayer1 = new QLabel(m_frmePlayer);
    m_lblPlayer1->setGeometry(0, px(210), px(kScoreWidth), px(kScoreHeight - 240));
    m_lblPlayer1->setAlignment(Qt::AlignCenter);
    m_lblPlayer1->setFont(Fonts::display(11));
    m_lblPlayer1->setMouseTracking(true);
    m_lblPlayer1->setContextMenuPolicy(Qt::CustomContextMenu);
    m_lblPlayer1->installEventFilter(this);
    connect(m_lblPlayer1, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildTurnMenu()->popup(m_lblPlayer1->mapToGlobal(at)); });

    // Menus whose entries belong to features still to come: they are there,
    // greyed, so the board offers what it will.
    auto laterMenu = [this](QWidget* owner, QStringList entries) {
        owner->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(owner, &QWidget::customContextMenuRequested, this,
                [this, owner, entries](const QPoint& at) {
                    auto* menu = new QMenu(this);
                    menu->setAttribute(Qt::WA_DeleteOnClose);
                    for (const QString& entry : entries) {
                        menu->addAction(entry)->setEnabled(false);
                    }
                    menu->popup(owner->mapToGlobal(at));
                });
    };
    laterMenu(m_lblTheme,
              {QStringLiteral("Temas seleccionados"), QStringLiteral("Dame un consejo")});
    laterMenu(m_frmeScore, {QStringLiteral("Pasar puntos a supervivencia")});

    m_lblAuto = new QLabel(this);
    m_lblAuto->setGeometry(twipRect(kAutoLeft, kAutoTop, kAutoSize, kAutoSize));
    m_lblAuto->setAlignment(Qt::AlignCenter);
    m_lblAuto->setFont(Fonts::display(9));
    m_lblAuto->setCursor(Qt::PointingHandCursor);
    m_lblAuto->installEventFilter(this);

    m_sessionPanel = new SessionPanel(
        m_model, [this] { sync(); }, this);
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
    m_frmeScore->setStyleSheet(QStringLiteral("#frmeScore { background: %1; border-radius: %2px; }"
                                              "QLabel { color: white; background: transparent; }")
                                   .arg(css(m_model.round().deathColours() ? kRedLamp : lamp.light))
                                   .arg(px(90)));
    m_frmePlayer->setStyleSheet(
        QStringLiteral("#frmePlayer { background: %1; border-radius: %2px; }"
                       "QLabel { color: white; background: transparent; }")
            .arg(css(lamp.light))
            .arg(px(90)));
    m_cmdCopy->setStyleSheet(
        QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                       " border-radius: 4px; } QPushButton:disabled { background: %2; }")
            .arg(css(game), css(kPictureButtonBack)));
    m_lblRestore->setStyleSheet(
        QStringLiteral("QLabel { border: 1px dashed %1; border-radius: 8px; }")
            .arg(css(kPictureButtonBack)));
    m_lblAuto->setStyleSheet(QStringLiteral("background: %1; color: %2; border-radius: 3px;")
                                 .arg(css(kPictureButtonBack), css(kAutoMarkerText)));
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

    const Scoring& scoring = m_model.scoring();
    setWindowTitle(qs(scoring.title()));
    m_frmeScore->setVisible(scoring.pointsCount());
    m_frmePlayer->setVisible(!scoring.pointsCount());
    m_lblPlayer1->setText(qs(m_model.playerLabel().caption));
    m_lblPlayer1->setToolTip(qs(m_model.playerLabel().tooltip));
    m_lblScore->setText(qs(scoring.scoreText()));
    m_cmdGame->setEnabled(scoring.playEnabled());
    const bool buttonHidden = m_model.shared().settings.sinBotonJugar;
    m_cmdGame->setVisible(!buttonHidden);
    m_cmdCopy->setVisible(!buttonHidden);
    m_cmdCopy->setText(qs(round.playCaption() == "JUGAR" ? "JUGAR" : "NUEVA"));
    m_cmdCopy->setEnabled(scoring.playEnabled() && !m_model.shared().locked);
    m_lblRestore->setVisible(buttonHidden);
    m_lblRestore->setToolTip(buttonHidden ? QStringLiteral(" Regresar botón JUGAR. ") : QString());
    m_lblAuto->setVisible(round.autoMarkerVisible());
    m_lblAuto->setText(qs(round.autoMarkerCaption()));
    m_lblAuto->setToolTip(qs(round.autoMarkerTooltip()));

    m_keyboard->setVisible(m_model.keyboardShown());
    m_keyboard->update();
    m_phrase->update();
    m_gallows->update();
    setFixedSize(px(QlvsModel::kWidthTwips), px(m_model.heightTwips()));
    m_sessionPanel->sync();
    syncTimers();
    followRestart();
}

void frmQlvs::followRestart() {
    if (m_model.menuRequested() && !m_restarting) {
        m_restarting = true;
        QTimer::singleShot(0, this, [this] {
            m_leaving = true;
            hide();
            if (onMenu) {
                onMenu();
            }
        });
        return;
    }
    if (!m_model.restartRequested() || m_restarting) {
        return;
    }
    // The board goes away for a new one; whoever opened it shows what comes
    // next once the current event is over.
    m_restarting = true;
    QTimer::singleShot(0, this, [this] {
        m_leaving = true;
        hide();
        if (onRestart) {
            onRestart();
        }
    });
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
    follow(m_tmrTop, m_model.topTimerRunning() && m_shownOnce);
    follow(m_tmrScore, m_model.scoreTimerRunning());
    follow(m_tmrKey, m_model.panel().animating());
    follow(m_tmrMenu, m_model.panel().listSliding());
}

void frmQlvs::playPressed() {
    handleStart(m_model.playPressed());
}

void frmQlvs::handleStart(GameStart start) {
    sync();
    if (start == GameStart::FriendWindow && !m_friendWindow) {
        m_friendWindow = new frmWord1(
            m_model.shared(), m_model.dialogs(),
            [this](const FriendPhrase& phrase) {
                m_model.friendPhrase(phrase.phrase, phrase.themeText);
                sync();
            },
            this);
        m_friendWindow->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_friendWindow, &QObject::destroyed, this, [this] {
            m_friendWindow = nullptr;
            activateWindow();
            setFocus();
        });
        m_friendWindow->open();
        return;
    }
    if (start != GameStart::ThemeWindow || m_themeWindow) {
        return;
    }
    m_themeWindow = new frmWord2(
        m_model.round(), m_model.shared().palette, [this] { sync(); }, this);
    m_themeWindow->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_themeWindow, &QObject::destroyed, this, [this] {
        m_themeWindow = nullptr;
        activateWindow();
        setFocus();
    });
    m_themeWindow->open();
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
    if (event->key() == Qt::Key_A && event->modifiers().testFlag(Qt::ControlModifier)) {
        m_model.keyTyped(WindowKey::ToggleAuto);
        sync();
        return;
    }
    if (event->modifiers().testFlag(Qt::ControlModifier) && event->key() == Qt::Key_S) {
        m_model.keyTyped(WindowKey::ToggleSounds);
        sync();
        return;
    }
    if (event->modifiers().testFlag(Qt::AltModifier) && event->key() == Qt::Key_Backspace) {
        m_model.keyTyped(WindowKey::BackToMenu);
        sync();
        return;
    }
    if (event->modifiers().testFlag(Qt::ControlModifier) && event->key() == Qt::Key_J) {
        eNames();
        return;
    }
    if (event->key() == Qt::Key_Menu) {
        buildPopup()->popup(mapToGlobal(rect().center()));
        return;
    }
    if (m_model.panel().shown() && event->key() != Qt::Key_F4) {
        // Behind the session panel the board takes no guesses.
        return;
    }
    switch (event->key()) {
    case Qt::Key_Delete:
        m_model.keyTyped(WindowKey::Delete);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        handleStart(m_model.keyTyped(WindowKey::Enter));
        return;
    case Qt::Key_Escape:
        m_model.keyTyped(WindowKey::Escape);
        break;
    case Qt::Key_F2:
        m_model.keyTyped(WindowKey::F2);
        break;
    case Qt::Key_F3:
        m_model.keyTyped(WindowKey::F3);
        break;
    case Qt::Key_F4:
        m_model.keyTyped(WindowKey::F4);
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
    if (watched == m_lblPlayer1) {
        if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
            m_model.hoverPlayer();
            m_lblPlayer1->setText(qs(m_model.playerLabel().caption));
            m_lblPlayer1->setToolTip(qs(m_model.playerLabel().tooltip));
        } else if (event->type() == QEvent::MouseButtonDblClick) {
            eNames();
            return true;
        }
        return false;
    }
    if (watched == m_lblRestore && event->type() == QEvent::MouseButtonRelease) {
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            m_model.hidePlayButton(false);
            sync();
        }
        return true;
    }
    if (watched == m_lblAuto && event->type() == QEvent::MouseButtonRelease) {
        m_model.eMenuAuto();
        sync();
        return true;
    }
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

QMenu* frmQlvs::buildPopup() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const Round& round = m_model.round();
    const Settings& settings = m_model.shared().settings;
    auto entry = [&](const char* text, std::function<void()> action, bool enabled = true) {
        QAction* a = menu->addAction(QString::fromUtf8(text));
        a->setEnabled(enabled);
        if (action) {
            connect(a, &QAction::triggered, this, [this, action] {
                action();
                sync();
            });
        }
        return a;
    };
    auto check = [](QAction* a, bool on) {
        a->setCheckable(true);
        a->setChecked(on);
    };
    // Entries whose windows come later are listed in their places, greyed.
    entry(
        "Nuevo partida", [this] { m_model.eMenuNew(); }, round.newGameEnabled());
    menu->addSeparator();
    entry("Reiniciar", [this] { m_model.eDReBoot(); });
    entry("Bloquear", [this] { m_model.eBlueScreen(); });
    if (m_model.scoring().pointsCount()) {
        entry(settings.supervivencia ? "Modo normal" : "Modo supervivencia", nullptr, false);
        entry("Estadísticas", nullptr, false);
    }
    if (m_model.deleteShown()) {
        entry("Eliminar sesión", [this] { m_model.deleteSession(); });
    }
    entry("Volver al menú", [this] { m_model.eMenuBack(); });
    menu->addSeparator();
    check(entry("Mostrar sonidos", [this] { m_model.toggleSounds(); }), settings.sonidos);
    check(entry("Frase automática", [this] { m_model.eMenuAuto(); }), settings.fraseAutomatica);
    check(entry("Estado animado", [this] { m_model.toggleAnimation(); }), settings.animacion);
    menu->addSeparator();
    entry("Editar jugadores", [this] { eNames(); });
    entry("Historial", nullptr, false);
    entry("Cambiar diseño", nullptr, false);
    menu->addSeparator();
    entry("Ayuda", nullptr, false);
    entry("Acerca", nullptr, false);
    menu->addSeparator();
    entry("Salir", [this] {
        if (onClose) {
            onClose();
        }
    });
    return menu;
}

QMenu* frmQlvs::buildTurnMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* free = menu->addAction(QStringLiteral("Turno libre"));
    free->setCheckable(true);
    free->setChecked(m_model.freeTurn());
    connect(free, &QAction::triggered, this, [this] {
        m_model.toggleFreeTurn();
        sync();
    });
    menu->addSeparator();
    QAction* forward = menu->addAction(QStringLiteral("Adelantar"));
    QAction* back = menu->addAction(QStringLiteral("Atrasar"));
    forward->setEnabled(m_model.turnMovesEnabled());
    back->setEnabled(m_model.turnMovesEnabled());
    connect(forward, &QAction::triggered, this, [this] {
        m_model.adelantar();
        sync();
    });
    connect(back, &QAction::triggered, this, [this] {
        m_model.atrasar();
        sync();
    });
    return menu;
}

void frmQlvs::eNames() {
    if (m_namesWindow) {
        return;
    }
    m_namesWindow = new frmNames(m_model.shared(), [this] {
        m_model.namesClosed();
        show();
        activateWindow();
        sync();
    });
    m_namesWindow->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_namesWindow, &QObject::destroyed, this, [this] { m_namesWindow = nullptr; });
    m_namesWindow->move(geometry().center() -
                        QPoint(m_namesWindow->width() / 2, m_namesWindow->height() / 2));
    hide();
    m_namesWindow->show();
}

QMenu* frmQlvs::buildPlayMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* autoPhrase = menu->addAction(QStringLiteral("Frase automática"));
    autoPhrase->setCheckable(true);
    autoPhrase->setChecked(m_model.shared().settings.fraseAutomatica);
    connect(autoPhrase, &QAction::triggered, this, [this] {
        m_model.eMenuAuto();
        sync();
    });
    connect(menu->addAction(QStringLiteral("Desaparecer botón")), &QAction::triggered, this,
            [this] {
                m_model.hidePlayButton(true);
                sync();
            });
    return menu;
}

void frmQlvs::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_model.panel().shown()) {
        handleStart(m_model.backgroundClicked());
        return;
    }
    QWidget::mousePressEvent(event);
}

void frmQlvs::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!m_shownOnce) {
        m_shownOnce = true;
        move(x(), y() + px(m_model.openingDropTwips()));
        syncTimers();
    }
}

void frmQlvs::closeEvent(QCloseEvent* event) {
    // The close box ends the game; going to the menu or restarting does not.
    if (!m_leaving && onClose) {
        onClose();
    }
    event->accept();
}

void frmQlvs::contextMenuEvent(QContextMenuEvent* event) {
    if (m_model.panel().shown()) {
        return;
    }
    buildPopup()->popup(event->globalPos());
}

void frmQlvs::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void frmQlvs::dropEvent(QDropEvent* event) {
    std::vector<std::string> paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) {
            paths.push_back(url.toLocalFile().toStdString());
        }
    }
    event->acceptProposedAction();
    m_model.dropFiles(paths);
    sync();
}

} // namespace quillora
