// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/frmQlvs/QlvsModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QMenu;
class QLineEdit;
class QPushButton;
class QTimer;

namespace quillora {

class GallowsView;
class KeyboardView;
class PhraseView;
class SessionPanel;
class frmWord2;
class frmWord1;
class frmNames;

// The board window: the phrase, the figure, the strikes and the keyboard. It
// turns the player's clicks and keys into calls on its model and paints what
// the model says.
class frmQlvs final : public QWidget {
public:
    frmQlvs(SharedState& shared, Dialogs& dialogs, Random& random, QWidget* parent = nullptr);
    ~frmQlvs() override;

    QlvsModel& model() { return m_model; }

    // Called when the board closes to start the game again (a restart or a
    // change of user) rather than to end the program.
    std::function<void()> onRestart;
    // Called when the board goes back to the main menu.
    std::function<void()> onMenu;
    // Called when the player closes the board with its close box or "Salir":
    // the game ends.
    std::function<void()> onClose;

    // Brings every control in step with the model and starts or stops the
    // timers it asks for.
    void sync();

    // For the tests: the controls a player sees.
    QLabel* statusLabel() const { return m_lblGame; }
    QLabel* counterLabel() const { return m_lblCont; }
    QLabel* themeLabel() const { return m_lblTheme; }
    QLabel* strikeLabel(int slot) const { return m_lblStrike[static_cast<std::size_t>(slot - 1)]; }
    QLabel* quitLabel() const { return m_lblQuit; }
    QPushButton* playButton() const { return m_cmdGame; }
    QPushButton* smallPlayButton() const { return m_cmdCopy; }
    QLabel* restoreLabel() const { return m_lblRestore; }
    QMenu* buildPlayMenu();
    QLineEdit* answerBox() const { return m_txtWord; }
    QPushButton* answerOkButton() const { return m_cmdOk; }
    KeyboardView* keyboard() const { return m_keyboard; }
    QLabel* scoreLabel() const { return m_lblScore; }
    QWidget* scoreFrame() const { return m_frmeScore; }
    QLabel* autoMarker() const { return m_lblAuto; }
    SessionPanel* sessionPanel() const { return m_sessionPanel; }
    frmWord2* themeWindow() const { return m_themeWindow; }
    frmWord1* friendWindow() const { return m_friendWindow; }
    frmNames* namesWindow() const { return m_namesWindow; }
    QLabel* playerLabel() const { return m_lblPlayer1; }
    QMenu* buildTurnMenu();
    // eNames: the board steps aside for the players window.
    void eNames();
    // The popup menu, built afresh for the state of the board.
    QMenu* buildPopup();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildControls();
    void paintPanels();
    void syncTimers();
    void playPressed();
    void handleStart(GameStart start);
    void okPressed();
    void keyboardChanged();
    void followRestart();

    QlvsModel m_model;

    GallowsView* m_gallows = nullptr;
    PhraseView* m_phrase = nullptr;
    KeyboardView* m_keyboard = nullptr;
    QLabel* m_lblGame = nullptr;
    QLabel* m_lblTheme = nullptr;
    QLabel* m_lblCont = nullptr;
    QWidget* m_frmeStrikes = nullptr;
    std::array<QLabel*, RoundState::kSlots> m_lblStrike{};
    QLabel* m_lblQuit = nullptr;
    QPushButton* m_cmdGame = nullptr;
    QLabel* m_lblQueEs = nullptr;
    QWidget* m_frmeWord = nullptr;
    QLabel* m_lblWordPrompt = nullptr;
    QLineEdit* m_txtWord = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QPushButton* m_cmdCopy = nullptr;
    QLabel* m_lblRestore = nullptr;
    QWidget* m_frmeScore = nullptr;
    QLabel* m_lblScore = nullptr;
    QLabel* m_lblAuto = nullptr;
    SessionPanel* m_sessionPanel = nullptr;
    frmWord2* m_themeWindow = nullptr;
    frmWord1* m_friendWindow = nullptr;
    frmNames* m_namesWindow = nullptr;
    QWidget* m_frmePlayer = nullptr;
    QLabel* m_lblPlayer1 = nullptr;
    QTimer* m_tmrNames = nullptr;
    QTimer* m_tmrTop = nullptr;
    bool m_restarting = false;
    bool m_leaving = false;
    bool m_shownOnce = false;

    QTimer* m_tmrSusp = nullptr;
    QTimer* m_tmrStrike = nullptr;
    QTimer* m_tmrSound = nullptr;
    QTimer* m_tmrOpen = nullptr;
    QTimer* m_tmrScore = nullptr;
    QTimer* m_tmrKey = nullptr;
    QTimer* m_tmrMenu = nullptr;
};

} // namespace quillora
