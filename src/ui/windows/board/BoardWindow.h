// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "windows/board/AnswerPanel.h"
#include "windows/board/AutoMarker.h"
#include "windows/board/BackgroundView.h"
#include "windows/board/BoardDialogs.h"
#include "windows/board/CountdownLabel.h"
#include "windows/board/DesignLink.h"
#include "windows/board/PlayPanel.h"
#include "windows/board/ScorePanel.h"
#include "windows/board/SmallPlayButton.h"
#include "windows/board/StrikeStrip.h"
#include "windows/board/ThemeBox.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTimer;

namespace quillora {

class AgainLabels;
class GallowsView;
class HistoryPanel;
class KeyboardView;
class LookUpLabel;
class PhraseView;
class SessionPanel;
class SoundButton;
class SoundPlayer;
class RoundedLabel;
class SidePanel;
class StatsPanel;
class ThemesPanel;
class TipStrip;
class WebLookUp;
class PlayersWindow;
class FriendPhraseWindow;
class ThemeWindow;

// The board window: it lays its panels out, hands the player's clicks and
// keys to its model, and brings the panels in step with the model after each.
class BoardWindow final : public QWidget {
public:
    BoardWindow(SharedState& shared, Dialogs& dialogs, Random& random, SoundPlayer& sounds,
                WebLookUp& lookUp, QWidget* parent = nullptr);
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
    QPoint menuCentre() const { return pos() + menuOffset(); }

    // Brings every control in step with the model and starts or stops the
    // timers it asks for.
    void sync();
    // Brings in step only the parts of the board the model says changed.
    void sync(BoardAreas areas);

    // For the tests: the controls a player sees.
    QLabel* statusLabel() const { return m_statusLabel; }
    QLabel* counterLabel() const { return m_counterLabel; }
    QLabel* themeLabel() const { return m_themeBox->themeLabel(); }
    QLabel* timeLabel() const { return m_timeLabel; }
    LookUpLabel* lookUpLabel() const { return m_lookUpLabel; }
    QTimer* countdownTimer() const { return m_countdownTimer; }
    QTimer* soundTimer() const { return m_soundTimer; }
    QTimer* scoreTimer() const { return m_scoreTimer; }
    QLabel* strikeLabel(int slot) const { return m_strikes->strikeLabel(slot); }
    QLabel* correctionLabel() const { return m_strikes->correctionLabel(); }
    QPushButton* playButton() const { return m_playPanel->playButton(); }
    QPushButton* smallPlayButton() const { return m_smallPlayButton; }
    QLabel* restoreLabel() const { return m_playPanel->restoreLabel(); }
    QMenu* buildPlayMenu() { return m_playPanel->buildPlayMenu(); }
    QLineEdit* answerBox() const { return m_answerPanel->answerBox(); }
    QPushButton* answerOkButton() const { return m_answerPanel->okButton(); }
    KeyboardView* keyboard() const { return m_keyboard; }
    PhraseView* phraseView() const { return m_phrase; }
    QLabel* scoreLabel() const { return m_scorePanel->scoreLabel(); }
    QWidget* scoreFrame() const { return m_scorePanel->scoreFrame(); }
    QLabel* playerLabel() const { return m_scorePanel->playerLabel(); }
    QMenu* buildTurnMenu() { return m_scorePanel->buildTurnMenu(); }
    QLabel* autoMarker() const { return m_autoMarker; }
    SoundButton* soundButton() const { return m_soundButton; }
    const BackgroundPicture& backgroundPicture() const { return m_background->picture(); }
    SessionPanel* sessionPanel() const { return m_sessionPanel; }
    SidePanel* sidePanel() const { return m_sidePanel; }
    AgainLabels* againLabels() const { return m_again; }
    StatsPanel* statsPanel() const { return m_statsPanel; }
    HistoryPanel* historyPanel() const { return m_historyPanel; }
    ThemesPanel* themesPanel() const { return m_themesPanel; }
    ThemeBox* themeBox() const { return m_themeBox; }
    TipStrip* tipStrip() const { return m_tipStrip; }
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
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    // From the board's top left corner to the centre of the menu it stands
    // over: the middle of the board before the keyboard lowered it.
    QPoint menuOffset() const {
        return QPoint(px(BoardModel::kWidthTwips) / 2, px(BoardModel::kBaseHeightTwips) / 2 -
                                                           px(m_model.slide().openingDropTwips()));
    }
    void buildControls();
    void buildTimers();
    void paintPanels();
    void paintLampPanels(const LampColours& lamp, Rgb score);
    void syncView();
    void syncCounter();
    void syncTimers();
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
    BackgroundView* m_background = nullptr;

    GallowsView* m_gallows = nullptr;
    PhraseView* m_phrase = nullptr;
    KeyboardView* m_keyboard = nullptr;
    StrikeStrip* m_strikes = nullptr;
    PlayPanel* m_playPanel = nullptr;
    ScorePanel* m_scorePanel = nullptr;
    AnswerPanel* m_answerPanel = nullptr;
    SidePanel* m_sidePanel = nullptr;
    SessionPanel* m_sessionPanel = nullptr;
    AgainLabels* m_again = nullptr;
    StatsPanel* m_statsPanel = nullptr;
    HistoryPanel* m_historyPanel = nullptr;
    ThemesPanel* m_themesPanel = nullptr;
    RoundedLabel* m_statusLabel = nullptr;
    ThemeBox* m_themeBox = nullptr;
    TipStrip* m_tipStrip = nullptr;
    QLabel* m_counterLabel = nullptr;
    CountdownLabel* m_timeLabel = nullptr;
    LookUpLabel* m_lookUpLabel = nullptr;
    SmallPlayButton* m_smallPlayButton = nullptr;
    AutoMarker* m_autoMarker = nullptr;
    SoundButton* m_soundButton = nullptr;
    ThemeWindow* m_themeWindow = nullptr;
    FriendPhraseWindow* m_friendWindow = nullptr;
    PlayersWindow* m_namesWindow = nullptr;
    bool m_restarting = false;
    bool m_leaving = false;
    bool m_shownOnce = false;

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
