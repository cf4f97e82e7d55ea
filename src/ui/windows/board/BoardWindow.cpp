// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardWindow.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
#include "ports/SoundPlayer.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/AgainLabels.h"
#include "windows/board/AnswerPanel.h"
#include "windows/board/AutoMarker.h"
#include "windows/board/BackgroundView.h"
#include "windows/board/BoardAccessible.h"
#include "windows/board/BoardDrops.h"
#include "windows/board/BoardKeys.h"
#include "windows/board/BoardPopup.h"
#include "windows/board/CountdownLabel.h"
#include "windows/board/GallowsView.h"
#include "windows/board/HistoryPanel.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/LookUpLabel.h"
#include "windows/board/PhraseView.h"
#include "windows/board/PlayPanel.h"
#include "windows/board/ScorePanel.h"
#include "windows/board/SessionPanel.h"
#include "windows/board/SidePanel.h"
#include "windows/board/SmallPlayButton.h"
#include "windows/board/SoundButton.h"
#include "windows/board/StatsPanel.h"
#include "windows/board/StrikeStrip.h"
#include "windows/board/ThemeBox.h"
#include "windows/board/ThemesPanel.h"
#include "windows/board/TipStrip.h"
#include "windows/friendPhrase/FriendPhraseWindow.h"
#include "windows/players/PlayersWindow.h"
#include "windows/theme/ThemeWindow.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace quillora {

namespace {

QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
}

// Where the board's own controls sit, in twips.
constexpr int kStatusLeft = 3000, kStatusTop = 300, kStatusWidth = 5040, kStatusHeight = 720;
constexpr int kCounterLeft = 10200, kCounterTop = 1050, kCounterWidth = 1095, kCounterHeight = 360;

} // namespace

BoardWindow::BoardWindow(SharedState& shared, Dialogs& dialogs, Random& random, SoundPlayer& sounds,
                         WebLookUp& lookUp, QWidget* parent)
    : QWidget(parent), m_boardDialogs(dialogs, [this] { drawNow(); }),
      m_model(shared, m_boardDialogs, random, lookUp),
      m_design(m_model.appearance(), m_model.round(), shared, m_boardDialogs, this,
               [this] { sync(); }),
      m_sounds(sounds) {
    setWindowTitle(QString::fromUtf8(kAppTitle.data(), static_cast<int>(kAppTitle.size())));
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    new BoardDrops(m_model.sessions(), this, [this] {
        sync();
        m_design.sync();
    });
    m_sounds.load();
    m_model.load();
    installBoardAccessibility();
    setAccessibleRole(this, QAccessible::Window);
    buildControls();
    buildTimers();
    // Every release of the mouse on the board puts the hover faces back. A
    // release goes to the control the press began on, so the board watches
    // itself and each of its controls, and nothing else of the program.
    installEventFilter(this);
    for (QWidget* control : findChildren<QWidget*>()) {
        control->installEventFilter(this);
    }
    sync();
}

BoardWindow::~BoardWindow() = default;

void BoardWindow::buildTimers() {
    auto timer = [this](int interval, auto tick) {
        auto* t = new QTimer(this);
        t->setInterval(interval);
        connect(t, &QTimer::timeout, this, tick);
        return t;
    };
    m_statusDotsTimer = timer(BoardModel::kStatusTickMs, [this] {
        m_model.round().tickStatus();
        m_statusLabel->setText(qs(m_model.round().status()));
    });
    m_lampTimer = timer(BoardModel::kLampTickMs, [this] {
        m_model.round().tickLamp();
        // The lamp going out changes the panels' colours and nothing else.
        paintPanels();
        syncTimers();
    });
    m_soundTimer = timer(PendingSound::kTickMs, [this] {
        playSound();
        syncTimers();
    });
    m_countdownTimer = timer(Countdown::kTickMs, [this] {
        m_model.tickCountdown();
        // A second gone changes the clock alone; only time up is news for
        // the whole board.
        if (m_model.round().inPlay()) {
            m_timeLabel->sync();
            syncTimers();
        } else {
            sync();
        }
    });
    m_scoreTimer = timer(BoardModel::kScoreTickMs, [this] {
        m_model.tickScore();
        m_scorePanel->syncScore();
        if (!m_model.scoring().counting()) {
            sync();
        }
        syncTimers();
    });
    // The session panel's slide and its list's drop share the 10 ms beat.
    m_sessionSlideTimer = timer(SessionPanelModel::kTickMs, [this] {
        m_model.sessions().panel().tick();
        sync();
    });
    m_sessionListTimer = timer(SessionPanelModel::kTickMs, [this] {
        m_model.sessions().panel().tickList();
        sync();
    });
    m_statsTimer = timer(StatsPanelModel::kTickMs, [this] {
        m_model.panels().stats().tick();
        m_statsPanel->sync();
        syncTimers();
    });
    m_keyboardOpenTimer = timer(KeyboardSlide::kOpenTickMs, [this] {
        m_model.slide().tickOpen();
        // While the keyboard slides, only the window's height moves; the
        // board comes in step once the keyboard is out.
        if (m_model.slide().opening()) {
            fitFrame();
            syncTimers();
        } else {
            sync();
        }
    });
    m_climbTimer = timer(KeyboardSlide::kOpenTickMs, [this] {
        move(x(), y() - px(m_model.slide().tickClimb()));
        syncTimers();
    });
    m_topCheckTimer = timer(KeyboardSlide::kTopCheckTickMs, [this] {
        const int top = px(KeyboardSlide::keepTopOnScreen(y() * kTwipsPerPixel));
        if (top != y()) {
            move(x(), top);
        }
        fitFrame();
        // Once the top is right and the news told, the watch rests until
        // the window moves again.
        m_topCheckTimer->stop();
        m_model.survival().tickAnnounce();
    });
    m_topCheckTimer->start();
    m_pulseTimer = timer(ScorePulse::kTickMs, [this] {
        m_model.scorePulse().tick();
        m_scorePanel->syncScore();
    });
    m_giftTimer = timer(BoardModel::kGiftTickMs, [this] {
        m_model.scoring().tickGift();
        m_scorePanel->syncScore();
        if (!m_model.scoring().gifting()) {
            sync();
        }
    });
    // A game with friends starts with their names.
    m_namesTimer = timer(BoardModel::kNamesDelayMs, [this] {
        if (m_model.turn().namesAtStart()) {
            openPlayersWindow();
        }
    });
    m_namesTimer->setSingleShot(true);
    m_namesTimer->start();
}

void BoardWindow::buildControls() {
    auto changed = [this] { sync(); };
    m_background = new BackgroundView(m_model.appearance(), this);
    m_gallows = new GallowsView(m_model.round().figure(), this);
    m_phrase = new PhraseView(m_model.round(), m_model.appearance(), this);
    m_design.keepInSight(m_phrase);
    SidePanels& panels = m_model.panels();
    m_sidePanel = new SidePanel(panels.side(), this);
    m_statsPanel = new StatsPanel(panels.stats(), changed, this);
    auto keys = [this](QKeyEvent* key) { return boardKey(key); };
    m_historyPanel = new HistoryPanel(panels, m_model.lookUps(), changed, keys, this);
    m_themesPanel = new ThemesPanel(panels, changed, keys, this);

    m_statusLabel = new RoundedLabel(this);
    m_statusLabel->setGeometry(twipRect(kStatusLeft, kStatusTop, kStatusWidth, kStatusHeight));
    m_statusLabel->setAlignment(Qt::AlignCenter);
    m_statusLabel->setFont(Fonts::display(18));

    Round& round = m_model.round();
    Scoring& scoring = m_model.scoring();
    m_themeBox = new ThemeBox(round, scoring, panels, m_model.tip(), changed, this);

    m_counterLabel = new QLabel(QStringLiteral("XX/YY"), this);
    m_counterLabel->setGeometry(twipRect(kCounterLeft, kCounterTop, kCounterWidth, kCounterHeight));
    m_counterLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_counterLabel->setFont(Fonts::display(12));
    m_counterLabel->setToolTip(QStringLiteral(" Letras reveladas. "));
    m_counterLabel->installEventFilter(this);
    m_timeLabel = new CountdownLabel(m_model.countdown(), m_model.appearance(), this);

    m_strikes = new StrikeStrip(round, m_model.keyFaces(), panels, changed, this);
    m_tipStrip = new TipStrip(m_model.tip(), this);
    const Settings& settings = m_model.shared().settings;
    m_playPanel = new PlayPanel(
        round, scoring, m_model.commands(), settings, changed, [this] { playPressed(); }, this);

    // The small twin of JUGAR: it plays too, and keys typed on it are guesses.
    m_smallPlayButton = new SmallPlayButton(
        round, scoring, settings, [this] { playPressed(); }, this);

    m_lookUpLabel = new LookUpLabel(round, m_model.lookUps(), this);

    m_answerPanel = new AnswerPanel(
        round.answerBox(), changed, [this](QKeyEvent* key) { return windowShortcut(key); }, this);
    m_keyboard = new KeyboardView(round, round.answerBox(), m_model.keyFaces(), changed, this);
    m_scorePanel = new ScorePanel(
        scoring, m_model.scorePulse(), m_model.turn(), panels, changed,
        [this] { openPlayersWindow(); }, this);

    m_autoMarker = new AutoMarker(round.phraseChoice(), changed, this);

    m_soundButton =
        new SoundButton(m_model.commands(), m_model.keyFaces(), settings, changed, this);

    m_again = new AgainLabels(m_model.survival(), changed, this);
    m_sessionPanel = new SessionPanel(m_model.sessions(), m_model.appearance(), changed, this);
}

void BoardWindow::paintPanels() {
    const BoardAppearance& look = m_model.appearance();
    const LampColours lamp = look.lampColours(m_model.round().lamp());
    const Rgb game = look.gameColour();
    const Rgb shade = look.shade();
    const Rgb score = m_model.round().deathColours() ? kRedLamp : lamp.light;
    // Style sheets are costly to apply, and the lamps flash after every
    // letter: only the panels whose colour changed are painted again.
    const QString lampKey = css(lamp.light) + css(lamp.dark) + css(score);
    if (lampKey != property("lampColours").toString()) {
        setProperty("lampColours", lampKey);
        paintLampPanels(lamp, score);
    }
    const QString gameKey = css(game) + css(m_model.appearance().background());
    if (gameKey == property("gameColours").toString()) {
        return;
    }
    setProperty("gameColours", gameKey);

    QPalette windowPalette = palette();
    windowPalette.setColor(QPalette::Window, qc(m_model.appearance().background()));
    setPalette(windowPalette);
    m_smallPlayButton->paint(css(game), css(kPictureButtonBack));
    m_playPanel->paint(QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                                      " border-radius: %3px; }"
                                      "QPushButton:hover { background: %2; }"
                                      "QPushButton:pressed { background: %4; }")
                           .arg(css(game), css(shade))
                           .arg(px(120))
                           .arg(css(kGreenLamp)),
                       QStringLiteral("QLabel { border: 1px dashed %1; border-radius: 8px; }")
                           .arg(css(kPictureButtonBack)));
    m_lookUpLabel->paint(css(shade));
    m_answerPanel->paint(css(game));
    m_again->paint(css(game));
    m_sidePanel->paint(css(game));
    m_historyPanel->paint(css(game), css(shade));
    m_themesPanel->paint(css(game), css(shade));
    m_statsPanel->paint(css(game), css(shade));
    m_tipStrip->paint(qc(game));
}

void BoardWindow::paintLampPanels(const LampColours& lamp, Rgb score) {
    m_statusLabel->setColours(qc(lamp.light), Qt::white);
    m_themeBox->setColours(qc(lamp.light), Qt::white);
    QPalette counter = m_counterLabel->palette();
    counter.setColor(QPalette::WindowText, qc(lamp.dark));
    m_counterLabel->setPalette(counter);
    m_strikes->paint(qc(lamp.light), qc(lamp.dark));
    m_scorePanel->paint(qc(score), qc(lamp.light));
}

void BoardWindow::sync() {
    syncView();
    syncTimers();
    followRestart();
}

void BoardWindow::sync(BoardAreas areas) {
    if (areas.isEverything()) {
        sync();
        return;
    }
    const Round& round = m_model.round();
    if (areas.has(BoardArea::Lamps)) {
        paintPanels();
    }
    if (areas.has(BoardArea::Status)) {
        m_statusLabel->setText(qs(round.status()));
        setSpokenName(m_statusLabel, qs(spokenStatus(round.status())));
    }
    if (areas.has(BoardArea::Cells)) {
        m_phrase->sync();
    }
    if (areas.has(BoardArea::Counter)) {
        syncCounter();
    }
    if (areas.has(BoardArea::Keys)) {
        m_keyboard->sync();
    }
    if (areas.has(BoardArea::Strikes)) {
        m_strikes->sync();
    }
    if (areas.has(BoardArea::Figure)) {
        m_gallows->sync();
    }
    if (areas.has(BoardArea::Turn)) {
        m_scorePanel->sync();
    }
    syncTimers();
}

void BoardWindow::syncCounter() {
    const Round& round = m_model.round();
    m_counterLabel->setText(qs(round.board().counterText()));
    setSpokenName(m_counterLabel, qs(spokenCounter(round.board())));
    m_counterLabel->setVisible(round.counterVisible());
}

void BoardWindow::syncView() {
    const Round& round = m_model.round();
    paintPanels();

    m_statusLabel->setText(qs(round.status()));
    setSpokenName(m_statusLabel, qs(spokenStatus(round.status())));
    m_themeBox->sync();
    syncCounter();
    m_timeLabel->sync();
    m_lookUpLabel->sync();
    m_strikes->sync();
    m_tipStrip->sync();
    m_playPanel->sync();
    m_answerPanel->sync();
    m_scorePanel->sync();
    m_sidePanel->sync();
    m_historyPanel->sync();
    m_themesPanel->sync();
    m_again->sync();
    m_statsPanel->sync();

    setWindowTitle(qs(m_model.windowTitle()));
    m_smallPlayButton->sync();
    m_autoMarker->sync();
    m_soundButton->sync();
    m_background->sync();

    m_keyboard->setVisible(m_model.slide().shown());
    m_keyboard->sync();
    m_phrase->sync();
    m_gallows->sync();
    fitFrame();
    m_sessionPanel->sync();
}

void BoardWindow::fitFrame() {
    // The board's sizes are the window's outer sizes: where the window
    // system draws a frame, the frame comes out of them and the controls
    // keep their places inside.
    const QSize frame = isWindow() && m_shownOnce ? frameGeometry().size() - size() : QSize();
    const QSize client(px(BoardModel::kWidthTwips) - frame.width(),
                       px(m_model.slide().heightTwips()) - frame.height());
    // Checked ten times a second: a size that stands costs nothing.
    if (client != size() || minimumSize() != maximumSize()) {
        setFixedSize(client);
    }
}

void BoardWindow::drawNow() {
    if (!m_statusLabel) {
        return; // still being built: there is no board to show yet
    }
    syncView();
    repaint();
}

void BoardWindow::placeOver(QPoint menuCentre) {
    fitFrame();
    move(menuCentre - menuOffset());
}

void BoardWindow::followRestart() {
    if (m_model.survival().reopenRequested() && !m_restarting) {
        m_restarting = true;
        const QPoint at = pos();
        QTimer::singleShot(0, this, [this, at] {
            m_leaving = true;
            hide();
            if (onReopen) {
                onReopen(at);
            }
        });
        return;
    }
    const bool toMenu = m_model.commands().menuRequested();
    if ((!toMenu && !m_model.commands().restartRequested()) || m_restarting) {
        return;
    }
    // The board goes away for the menu or a new start; whoever opened it
    // shows what comes next once the current event is over.
    m_restarting = true;
    QTimer::singleShot(0, this, [this, toMenu] {
        m_leaving = true;
        hide();
        if (const auto& next = toMenu ? onMenu : onRestart) {
            next();
        }
    });
}

void BoardWindow::syncTimers() {
    auto follow = [](QTimer* timer, bool running) {
        if (running && !timer->isActive()) {
            timer->start();
        } else if (!running && timer->isActive()) {
            timer->stop();
        }
    };
    follow(m_statusDotsTimer, m_model.round().statusTimerRunning());
    follow(m_lampTimer, m_model.round().lampTimerRunning());
    follow(m_soundTimer, m_model.round().pendingSound().timerRunning());
    follow(m_keyboardOpenTimer, m_model.slide().opening());
    follow(m_climbTimer, m_model.slide().climbing() && m_shownOnce);
    follow(m_scoreTimer, m_model.scoring().counting());
    follow(m_countdownTimer, m_model.countdown().running());
    follow(m_sessionSlideTimer, m_model.sessions().panel().animating());
    follow(m_sessionListTimer, m_model.sessions().panel().listSliding());
    follow(m_pulseTimer, m_model.scorePulse().running());
    follow(m_giftTimer, m_model.scoring().gifting());
    follow(m_statsTimer, m_model.panels().stats().animating());
}

void BoardWindow::playSound() {
    const int number = m_model.round().pendingSound().tick();
    if (number == 0) {
        return;
    }
    // The sound plays on its own thread; its end comes back here, unless
    // the board has gone in the meantime.
    m_sounds.play(number, [board = QPointer<BoardWindow>(this), number] {
        if (board) {
            board->m_model.soundEnded(number);
            board->syncTimers();
        }
    });
}

void BoardWindow::playPressed() {
    handleStart(m_model.playPressed());
}

void BoardWindow::handleStart(GameStart start) {
    sync();
    auto opened = [this](QWidget* window, auto& member) {
        window->setAttribute(Qt::WA_DeleteOnClose);
        connect(window, &QObject::destroyed, this, [this, &member] {
            member = nullptr;
            activateWindow();
            setFocus();
        });
    };
    if (start == GameStart::FriendWindow && !m_friendWindow) {
        m_friendWindow = new FriendPhraseWindow(
            m_model.shared(), m_boardDialogs,
            [this](const FriendPhrase& phrase) {
                m_model.friendPhrase(phrase.phrase, phrase.themeText);
                sync();
            },
            this);
        opened(m_friendWindow, m_friendWindow);
        m_friendWindow->open();
    } else if (start == GameStart::ThemeWindow && !m_themeWindow) {
        m_themeWindow = new ThemeWindow(
            m_model.round().phraseChoice(), m_model.shared(), m_boardDialogs, [this] { sync(); },
            this);
        opened(m_themeWindow, m_themeWindow);
        m_themeWindow->open();
    }
}

bool BoardWindow::windowShortcut(QKeyEvent* event) {
    using WindowKey = BoardModel::WindowKey;
    const WindowKey key = shortcutOf(*event);
    if (key == WindowKey::Other) {
        return false;
    }
    if (m_model.keyReachesBoard(key)) {
        if (key == WindowKey::Names) {
            openPlayersWindow();
            return true;
        }
        if (key == WindowKey::Design) {
            m_design.openDesign();
            return true;
        }
        if (key == WindowKey::MenuKey) {
            buildPopup()->popup(mapToGlobal(rect().center()));
            return true;
        }
    }
    m_model.keyTyped(key);
    sync();
    return true;
}

bool BoardWindow::boardKey(QKeyEvent* event) {
    if (windowShortcut(event)) {
        return true;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        handleStart(m_model.keyTyped(BoardModel::WindowKey::Enter));
        return true;
    }
    return false;
}

void BoardWindow::keyPressEvent(QKeyEvent* event) {
    using WindowKey = BoardModel::WindowKey;
    if (boardKey(event)) {
        return;
    }
    if (const char32_t accent = deadAccent(event->key())) {
        m_model.keyTyped(WindowKey::DeadKey, accent);
        return;
    }
    const std::u32string text = event->text().toStdU32String();
    if (text.size() != 1) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_model.keyTyped(WindowKey::Character, text.front());
    sync(m_model.changedAreas());
}

bool BoardWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && watched->isWidgetType() &&
        (watched == this || isAncestorOf(static_cast<QWidget*>(watched)))) {
        m_model.keyFaces().restore();
        m_strikes->sync();
        m_keyboard->update();
    }
    // The counter, like the score and the strikes, only puts the side
    // panels away.
    if (watched == m_counterLabel && event->type() == QEvent::MouseButtonPress) {
        m_model.panels().closeAll();
        sync();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QMenu* BoardWindow::buildPopup() {
    return buildBoardPopup(
        m_model, this, [this] { sync(); }, [this] { openPlayersWindow(); },
        [this] { m_design.openDesign(); },
        [this] {
            if (onClose) {
                onClose();
            }
        });
}

void BoardWindow::openPlayersWindow() {
    if (m_namesWindow) {
        return;
    }
    m_namesWindow = new PlayersWindow(m_model.shared(), [this] {
        m_model.turn().namesClosed();
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

void BoardWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_model.sessions().panel().shown()) {
        handleStart(m_model.backgroundClicked());
        return;
    }
    QWidget::mousePressEvent(event);
}

void BoardWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (m_topCheckTimer && !m_topCheckTimer->isActive()) {
        m_topCheckTimer->start();
    }
}

void BoardWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!m_shownOnce) {
        m_shownOnce = true;
        syncTimers();
    }
}

void BoardWindow::closeEvent(QCloseEvent* event) {
    // The close box ends the game; going to the menu or restarting does not.
    if (!m_leaving && onClose) {
        onClose();
    }
    event->accept();
}

void BoardWindow::contextMenuEvent(QContextMenuEvent* event) {
    if (m_model.sessions().panel().shown()) {
        return;
    }
    buildPopup()->popup(event->globalPos());
}

} // namespace quillora
