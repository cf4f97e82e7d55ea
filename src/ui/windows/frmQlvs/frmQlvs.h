// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"
#include "models/frmQlvs/QlvsModel.h"
#include "windows/frmQlvs/AnswerPanel.h"
#include "windows/frmQlvs/AutoMarker.h"
#include "windows/frmQlvs/BackgroundView.h"
#include "windows/frmQlvs/BoardDialogs.h"
#include "windows/frmQlvs/CountdownLabel.h"
#include "windows/frmQlvs/DesignLink.h"
#include "windows/frmQlvs/PlayPanel.h"
#include "windows/frmQlvs/ScorePanel.h"
#include "windows/frmQlvs/SmallPlayButton.h"
#include "windows/frmQlvs/StrikeStrip.h"
#include "windows/frmQlvs/ThemeBox.h"

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
class frmNames;
class frmWord1;
class frmWord2;

// The board window: it lays its panels out, hands the player's clicks and
// keys to its model, and brings the panels in step with the model after each.
class frmQlvs final : public QWidget {
public:
    frmQlvs(SharedState& shared, Dialogs& dialogs, Random& random, SoundPlayer& sounds,
            WebLookUp& lookUp, QWidget* parent = nullptr);
    ~frmQlvs() override;

    QlvsModel& model() { return m_model; }

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

    // For the tests: the controls a player sees.
    QLabel* statusLabel() const { return m_lblGame; }
    QLabel* counterLabel() const { return m_lblCont; }
    QLabel* themeLabel() const { return m_themeBox->themeLabel(); }
    QLabel* timeLabel() const { return m_lblTime; }
    LookUpLabel* queEsLabel() const { return m_lblQueEs; }
    QTimer* countdownTimer() const { return m_tmrOver; }
    QTimer* soundTimer() const { return m_tmrSound; }
    QTimer* scoreTimer() const { return m_tmrScore; }
    QLabel* strikeLabel(int slot) const { return m_strikes->strikeLabel(slot); }
    QLabel* quitLabel() const { return m_strikes->quitLabel(); }
    QPushButton* playButton() const { return m_playPanel->playButton(); }
    QPushButton* smallPlayButton() const { return m_cmdCopy; }
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
    QLabel* autoMarker() const { return m_lblAuto; }
    SoundButton* soundButton() const { return m_cmdVoz; }
    const BackgroundPicture& backgroundPicture() const { return m_imgFondo->picture(); }
    SessionPanel* sessionPanel() const { return m_sessionPanel; }
    SidePanel* sidePanel() const { return m_sidePanel; }
    AgainLabels* againLabels() const { return m_again; }
    StatsPanel* statsPanel() const { return m_statsPanel; }
    HistoryPanel* historyPanel() const { return m_historyPanel; }
    ThemesPanel* themesPanel() const { return m_themesPanel; }
    ThemeBox* themeBox() const { return m_themeBox; }
    TipStrip* tipStrip() const { return m_tipStrip; }
    frmWord2* themeWindow() const { return m_themeWindow; }
    frmWord1* friendWindow() const { return m_friendWindow; }
    frmNames* namesWindow() const { return m_namesWindow; }
    frmDiseno* designWindow() const { return m_design.window(); }
    // eNames: the board steps aside for the players window.
    void eNames();
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
        return QPoint(px(QlvsModel::kWidthTwips) / 2,
                      px(QlvsModel::kBaseHeightTwips) / 2 - px(m_model.openingDropTwips()));
    }
    void buildControls();
    void buildTimers();
    void paintPanels();
    void paintLampPanels(const LampColours& lamp, Rgb score);
    void syncView();
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
    QlvsModel m_model;
    // Declared after the model: the design window works on it, and closes first.
    DesignLink m_design;
    SoundPlayer& m_sounds;
    BackgroundView* m_imgFondo = nullptr;

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
    RoundedLabel* m_lblGame = nullptr;
    ThemeBox* m_themeBox = nullptr;
    TipStrip* m_tipStrip = nullptr;
    QLabel* m_lblCont = nullptr;
    CountdownLabel* m_lblTime = nullptr;
    LookUpLabel* m_lblQueEs = nullptr;
    SmallPlayButton* m_cmdCopy = nullptr;
    AutoMarker* m_lblAuto = nullptr;
    SoundButton* m_cmdVoz = nullptr;
    frmWord2* m_themeWindow = nullptr;
    frmWord1* m_friendWindow = nullptr;
    frmNames* m_namesWindow = nullptr;
    bool m_restarting = false;
    bool m_leaving = false;
    bool m_shownOnce = false;

    QTimer* m_tmrSusp = nullptr;
    QTimer* m_tmrStrike = nullptr;
    QTimer* m_tmrSound = nullptr;
    QTimer* m_tmrOpen = nullptr;
    QTimer* m_tmrTop = nullptr;
    QTimer* m_tmrScore = nullptr;
    QTimer* m_tmrOver = nullptr;
    QTimer* m_tmrKey = nullptr;
    QTimer* m_tmrMenu = nullptr;
    QTimer* m_tmrNames = nullptr;
    QTimer* m_tmrRebote = nullptr;
    QTimer* m_tmrFore = nullptr;
    QTimer* m_tmrGift = nullptr;
    QTimer* m_tmrStat = nullptr;
};

} // namespace quillora
