// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardWindow.h"

#include "look/Twips.h"
#include "platform/ScreenKeeper.h"
#include "platform/TwipScale.h"
#include "ports/SoundPlayer.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"
#include "windows/board/BoardControls.h"
#include "windows/board/BoardDrops.h"
#include "windows/board/BoardKeys.h"
#include "windows/board/BoardPopup.h"
#include "windows/board/BoardStage.h"
#include "windows/board/CountdownLabel.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PhraseView.h"
#include "windows/board/ScorePanel.h"
#include "windows/board/SessionPanel.h"
#include "windows/board/StatsPanel.h"
#include "windows/board/StrikeStrip.h"
#include "windows/friendPhrase/FriendPhraseWindow.h"
#include "windows/players/PlayersWindow.h"
#include "windows/theme/ThemeWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace quillora {

namespace {

// A timer runs while the model wants it: started or stopped only where that
// may have changed.
void follow(QTimer* timer, bool running) {
    if (running && !timer->isActive()) {
        timer->start();
    } else if (!running && timer->isActive()) {
        timer->stop();
    }
}

} // namespace

BoardWindow::BoardWindow(SharedState& shared, Dialogs& dialogs, Announcer& announcer,
                         Random& random, SoundPlayer& sounds, WebLookUp& lookUp, QWidget* parent)
    : QWidget(parent), m_boardDialogs(dialogs, [this] { drawNow(); }),
      m_model(shared, m_boardDialogs, announcer, random, lookUp),
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
    // The controls stand on a stage of the board's own size: the window's
    // ground shows round it while the board fills a larger screen.
    m_stage = new QWidget(this);
    m_stage->setObjectName(QStringLiteral("stage"));
    m_ui = std::make_unique<BoardControls>(
        m_model, announcer, m_stage,
        BoardActions{
            [this] { sync(); }, [this](BoardAreas areas) { sync(areas); },
            [this] { playPressed(); }, [this](QKeyEvent* key) { return windowShortcut(key); },
            [this](QKeyEvent* key) { return boardKey(key); }, [this] { openPlayersWindow(); }});
    m_design.keepInSight(m_ui->phrase);
    // The board itself holding the focus shows no ring: letters guess and
    // Enter plays. A button reached with Tab wears it.
    new FocusRing(this);
    buildTimers();
    // Every release of the mouse on the board puts the hover faces back. A
    // release goes to the control the press began on, so the board watches
    // itself and each of its controls, and nothing else of the program.
    installEventFilter(this);
    for (QWidget* control : findChildren<QWidget*>()) {
        control->installEventFilter(this);
    }
    sync();
    // The board opens with the keys: letters guess and Enter plays, where
    // Qt would hand a window that names no focus to its first button.
    setFocus();
}

BoardWindow::~BoardWindow() {
    // A control that loses the focus may look at the model: it loses it
    // now, while the model is still there, not as the window goes.
    if (isAncestorOf(QApplication::focusWidget())) {
        setFocus();
    }
    // The board watches itself and its controls; the watch ends before the
    // controls and the windows over the board go, since their going sends
    // the board events of its own.
    removeEventFilter(this);
    for (QWidget* control : findChildren<QWidget*>()) {
        control->removeEventFilter(this);
    }
}

void BoardWindow::buildTimers() {
    auto timer = [this](int interval, auto tick) {
        auto* t = new QTimer(this);
        t->setInterval(interval);
        connect(t, &QTimer::timeout, this, tick);
        return t;
    };
    m_statusDotsTimer = timer(BoardModel::kStatusTickMs, [this] {
        m_model.round().tickStatus();
        m_ui->statusLabel->setText(qs(m_model.round().status()));
    });
    m_lampTimer = timer(BoardModel::kLampTickMs, [this] {
        m_model.round().tickLamp();
        // The lamp going out changes the panels' colours and nothing else.
        m_ui->paint();
        follow(m_lampTimer, m_model.round().lampTimerRunning());
    });
    m_soundTimer = timer(PendingSound::kTickMs, [this] {
        playSound();
        follow(m_soundTimer, m_model.round().pendingSound().timerRunning());
    });
    m_countdownTimer = timer(Countdown::kTickMs, [this] {
        m_model.tickCountdown();
        // A second gone changes the clock alone; only time up is news for
        // the whole board.
        if (m_model.round().inPlay()) {
            m_ui->timeLabel->sync();
            // Ten seconds before the end the clock asks for its warning.
            follow(m_soundTimer, m_model.round().pendingSound().timerRunning());
        } else {
            sync();
        }
    });
    m_scoreTimer = timer(BoardModel::kScoreTickMs, [this] {
        m_model.tickScore();
        m_ui->scorePanel->syncScore();
        if (!m_model.scoring().counting()) {
            sync();
        }
    });
    // The session panel's slide and its list's drop share the 10 ms beat.
    m_sessionSlideTimer = timer(SessionPanelModel::kTickMs, [this] {
        m_model.sessions().panel().tick();
        // While the panel slides only it moves; the board comes in step
        // once it stands.
        if (m_model.sessions().panel().animating()) {
            m_ui->sessionPanel->sync();
        } else {
            sync();
        }
    });
    m_sessionListTimer = timer(SessionPanelModel::kTickMs, [this] {
        m_model.sessions().panel().tickList();
        if (m_model.sessions().panel().listSliding()) {
            m_ui->sessionPanel->sync();
        } else {
            sync();
        }
    });
    m_statsTimer = timer(StatsPanelModel::kTickMs, [this] {
        m_model.panels().stats().tick();
        m_ui->statsPanel->sync();
        follow(m_statsTimer, m_model.panels().stats().animating());
    });
    m_keyboardOpenTimer = timer(KeyboardSlide::kOpenTickMs, [this] {
        m_model.slide().tickOpen();
        // While the keyboard slides, only the window's height moves; the
        // board comes in step once the keyboard is out.
        if (m_model.slide().opening()) {
            fitFrame();
        } else {
            sync();
        }
    });
    m_climbTimer = timer(KeyboardSlide::kOpenTickMs, [this] {
        const int climb = px(m_model.slide().tickClimb());
        if (m_fullScreen) {
            m_windowedPlace.ry() -= climb;
        } else {
            move(x(), y() - climb);
        }
        follow(m_climbTimer, m_model.slide().climbing());
    });
    m_topCheckTimer = timer(KeyboardSlide::kTopCheckTickMs, [this] {
        const int top = px(KeyboardSlide::keepTopOnScreen(y() * kTwipsPerPixel));
        if (top != y() && !m_fullScreen) {
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
        m_ui->scorePanel->syncScore();
    });
    m_giftTimer = timer(BoardModel::kGiftTickMs, [this] {
        m_model.scoring().tickGift();
        m_ui->scorePanel->syncScore();
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

void BoardWindow::syncView() {
    followFullScreen();
    m_ui->syncAll();
    setWindowTitle(qs(m_model.windowTitle()));
    fitFrame();
}

void BoardWindow::followFullScreen() {
    const bool wanted = m_model.fullScreen();
    if (wanted == m_fullScreen) {
        return;
    }
    if (wanted) {
        m_windowedPlace = pos();
        // A fixed size would keep the window from filling the screen.
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    m_fullScreen = wanted;
    showAtScale(wanted ? fullScreenFactor(screen()->geometry().size()) : 1.0);
    if (wanted) {
        // Without a window manager to fill the screen, the window fills it
        // itself; with one, the state asks the same. A hidden window takes
        // the state with it when it shows.
        setGeometry(screen()->geometry());
        setWindowState(windowState() | Qt::WindowFullScreen);
    } else {
        setWindowState(windowState() & ~Qt::WindowFullScreen);
        fitFrame();
        move(m_windowedPlace);
    }
    placeStage();
}

void BoardWindow::showAtScale(double factor) {
    TwipScale::hold(this, factor);
    m_ui->rescaled();
    placeStage();
}

void BoardWindow::placeStage() {
    m_stage->setGeometry(
        stageRect(size(), m_fullScreen, m_model.slide().heightTwips(), TwipScale::of(this)));
}

void BoardWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeStage();
}

void BoardWindow::sync() {
    syncView();
    followTimers(BoardAreas::everything());
    followRestart();
}

void BoardWindow::sync(BoardAreas areas) {
    if (areas.isEverything()) {
        sync();
        return;
    }
    m_ui->sync(areas);
    followTimers(areas);
}

void BoardWindow::fitFrame() {
    if (m_fullScreen) {
        // The window is the screen; the stage grows with the keyboard.
        placeStage();
        return;
    }
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
    placeStage();
}

void BoardWindow::drawNow() {
    if (!m_ui) {
        return; // still being built: there is no board to show yet
    }
    syncView();
    repaint();
}

void BoardWindow::placeOver(QPoint menuCentre) {
    fitFrame();
    if (m_fullScreen) {
        m_windowedPlace = menuCentre - menuOffset();
    } else {
        move(menuCentre - menuOffset());
    }
}

void BoardWindow::followRestart() {
    if (m_model.survival().reopenRequested() && !m_restarting) {
        m_restarting = true;
        const QPoint at = windowedPlace();
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

void BoardWindow::followTimers(BoardAreas areas) {
    const Round& round = m_model.round();
    // A guess sets the status's dots going or stops them, flashes a lamp
    // and asks for its sound; nothing else of the board moves by itself
    // after it.
    if (areas.has(BoardArea::Status)) {
        follow(m_statusDotsTimer, round.statusTimerRunning());
    }
    if (areas.has(BoardArea::Lamps)) {
        follow(m_lampTimer, round.lampTimerRunning());
        follow(m_soundTimer, m_model.round().pendingSound().timerRunning());
    }
    if (!areas.isEverything()) {
        return;
    }
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
            // A new game's score counts once its opening sound is over.
            follow(board->m_scoreTimer, board->m_model.scoring().counting());
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
        ScreenKeeper::watch(*m_friendWindow);
        opened(m_friendWindow, m_friendWindow);
        m_friendWindow->open();
    } else if (start == GameStart::ThemeWindow && !m_themeWindow) {
        m_themeWindow = new ThemeWindow(
            m_model.round().phraseChoice(), m_model.shared(), m_boardDialogs, [this] { sync(); },
            this);
        ScreenKeeper::watch(*m_themeWindow);
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
        m_ui->strikes->sync();
        m_ui->keyboard->update();
    }
    // The counter, like the score and the strikes, only puts the side
    // panels away.
    if (watched == m_ui->counterLabel && event->type() == QEvent::MouseButtonPress) {
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
    // Opened by the board, it takes the board's scale.
    m_namesWindow = new PlayersWindow(
        m_model.shared(),
        [this] {
            m_model.turn().namesClosed();
            show();
            activateWindow();
            sync();
        },
        this);
    m_namesWindow->setAttribute(Qt::WA_DeleteOnClose);
    ScreenKeeper::watch(*m_namesWindow);
    connect(m_namesWindow, &QObject::destroyed, this, [this] { m_namesWindow = nullptr; });
    m_namesWindow->move(geometry().center() -
                        QPoint(m_namesWindow->width() / 2, m_namesWindow->height() / 2));
    hide();
    m_namesWindow->show();
}

bool BoardWindow::focusNextPrevChild(bool next) {
    // The session panel covers the board: no button behind it is reached.
    if (m_model.sessions().panel().shown()) {
        return m_ui->sessionPanel->tabWithin(next);
    }
    return QWidget::focusNextPrevChild(next);
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
        follow(m_climbTimer, m_model.slide().climbing());
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
