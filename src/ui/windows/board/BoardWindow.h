// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "windows/board/BoardDialogs.h"
#include "windows/board/DesignLink.h"

#include <QWidget>

#include <functional>
#include <memory>

class QMenu;
class QTimer;

namespace quillora {

class BoardControls;
class SoundPlayer;
class WebLookUp;
class PlayersWindow;
class FriendPhraseWindow;
class ThemeWindow;

// The board window: it hands the player's clicks and keys to its model,
// brings its controls in step with what each changed, runs the timers that
// move the board on its own, and opens the windows that come over it.
class BoardWindow final : public QWidget {
public:
    BoardWindow(SharedState& shared, Dialogs& dialogs, Announcer& announcer, Random& random,
                SoundPlayer& sounds, WebLookUp& lookUp, QWidget* parent = nullptr);
    ~BoardWindow() override;

    BoardModel& model() { return m_model; }

    // Called when the board closes to start the game again (a restart or a
    // change of user) rather than to end the program.
    std::function<void()> onRestart;
    // Called when the board goes back to the main menu.
    std::function<void()> onMenu;
    // Called when a switch of survival mode reopens the board, with the
    // place the new one opens at.
    std::function<void(QPoint)> onReopen;
    // Called when the player closes the board with its close box or "Salir":
    // the game ends.
    std::function<void()> onClose;

    // Opens the board centred over the menu whose centre is given, and the
    // other way round: where the menu goes back to, so trips between the two
    // leave both where they were.
    void placeOver(QPoint menuCentre);
    QPoint menuCentre() const { return windowedPlace() + menuOffset(); }

    // Brings every control in step with the model and starts or stops the
    // timers it asks for.
    void sync();
    // Brings in step only the parts of the board the model says changed.
    void sync(BoardAreas areas);

    // The controls a player sees, and the timers that move the board on its own.
    const BoardControls& controls() const { return *m_ui; }
    // What holds the controls: the whole window, or the board's place in the
    // middle of the screen while the board fills it.
    QWidget* stage() const { return m_stage; }
    // Lays the board and the windows it opens out at a scale: F11 picks the
    // one that fills the screen.
    void showAtScale(double factor);
    QTimer* countdownTimer() const { return m_countdownTimer; }
    QTimer* soundTimer() const { return m_soundTimer; }
    QTimer* scoreTimer() const { return m_scoreTimer; }
    // The windows the board opens over itself, while they are open.
    ThemeWindow* themeWindow() const { return m_themeWindow; }
    FriendPhraseWindow* friendWindow() const { return m_friendWindow; }
    PlayersWindow* namesWindow() const { return m_namesWindow; }
    DesignWindow* designWindow() const { return m_design.window(); }
    // openPlayersWindow: the board steps aside for the players window.
    void openPlayersWindow();
    // The popup menu, built afresh for the state of the board.
    QMenu* buildPopup();
    // The board's shortcut table, which acts before the control with the
    // focus; true when the key was one of the board's.
    bool windowShortcut(QKeyEvent* event);
    // The board's keys as a list of a side panel offers them: the shortcuts,
    // and Enter for JUGAR.
    bool boardKey(QKeyEvent* event);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // From the board's top left corner to the centre of the menu it stands
    // over: the middle of the board before the keyboard lowered it.
    QPoint menuOffset() const {
        return QPoint(px(BoardModel::kWidthTwips) / 2, px(BoardModel::kBaseHeightTwips) / 2 -
                                                           px(m_model.slide().openingDropTwips()));
    }
    // Where the board stands as a window: where it is, or where it goes back
    // to when it leaves full screen.
    QPoint windowedPlace() const { return m_fullScreen ? m_windowedPlace : pos(); }
    // Fills the screen or goes back to the window, as the model says.
    void followFullScreen();
    void placeStage();
    void buildTimers();
    // Starts or stops the timers whose state the areas given may have changed.
    void followTimers(BoardAreas areas);
    void syncView();
    void fitFrame();
    // The board as it stands, painted at once: what a message box shows
    // behind it.
    void drawNow();
    void playPressed();
    void handleStart(GameStart start);
    void followRestart();
    void playSound();

    BoardDialogs m_boardDialogs;
    BoardModel m_model;
    // Declared after the model: the design window works on it, and closes first.
    DesignLink m_design;
    SoundPlayer& m_sounds;
    std::unique_ptr<BoardControls> m_ui;
    ThemeWindow* m_themeWindow = nullptr;
    FriendPhraseWindow* m_friendWindow = nullptr;
    PlayersWindow* m_namesWindow = nullptr;
    bool m_restarting = false;
    bool m_leaving = false;
    bool m_shownOnce = false;
    QWidget* m_stage = nullptr;
    bool m_fullScreen = false;
    QPoint m_windowedPlace;

    QTimer* m_statusDotsTimer = nullptr;
    QTimer* m_lampTimer = nullptr;
    QTimer* m_soundTimer = nullptr;
    QTimer* m_keyboardOpenTimer = nullptr;
    QTimer* m_climbTimer = nullptr;
    QTimer* m_scoreTimer = nullptr;
    QTimer* m_countdownTimer = nullptr;
    QTimer* m_sessionSlideTimer = nullptr;
    QTimer* m_sessionListTimer = nullptr;
    QTimer* m_namesTimer = nullptr;
    QTimer* m_topCheckTimer = nullptr;
    QTimer* m_pulseTimer = nullptr;
    QTimer* m_giftTimer = nullptr;
    QTimer* m_statsTimer = nullptr;
};

} // namespace quillora
