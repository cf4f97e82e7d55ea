// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardAreas.h"
#include "models/board/HistoryPanelModel.h"
#include "models/board/KeyboardSlide.h"
#include "models/board/ScorePulse.h"
#include "models/board/SessionPanelModel.h"
#include "models/board/SidePanelModel.h"
#include "models/board/StatsPanelModel.h"
#include "models/board/ThemesPanelModel.h"
#include "models/board/TipModel.h"
#include "players/Players.h"
#include "round/Round.h"
#include "scoring/Countdown.h"
#include "scoring/Points.h"
#include "state/SharedState.h"
#include "storage/Sessions.h"

#include <functional>
#include <string>
#include <vector>

namespace quillora {

class WebLookUp;

// The board window's own state beside the game: the score, the countdown,
// the sessions and their panel, the keyboard's faces under the mouse, the strike-correction
// label and which of the window's timers run. The
// widget draws this and the round it holds.
class BoardModel final : private RoundEvents {
public:
    static constexpr int kWidthTwips = kBoardWidthTwips;
    static constexpr int kBaseHeightTwips = kBoardBaseHeightTwips;
    static constexpr int kStatusTickMs = 500;
    static constexpr int kLampTickMs = 400;
    static constexpr int kScoreTickMs = 1;
    static constexpr int kNamesDelayMs = 500;
    static constexpr int kGiftTickMs = 1;

    BoardModel(SharedState& shared, Dialogs& dialogs, Random& random, WebLookUp& lookUp,
               RoundEvents* events = nullptr);

    // The board's opening: the options of the current session are read and
    // applied, and a locked session shows its key panel at once. A step that
    // fails is passed over and the title says the data did not load.
    void load();
    bool loadFailed() const { return m_loadFailed; }
    // The window's title: the score's, with the load notice behind it.
    std::string windowTitle() const;

    Round& round() { return m_round; }
    const Round& round() const { return m_round; }
    const SharedState& shared() const { return m_shared; }
    // The windows the board opens work on the same state and boxes.
    SharedState& shared() { return m_shared; }
    Dialogs& dialogs() { return m_dialogs; }
    Scoring& scoring() { return m_scoring; }
    const Scoring& scoring() const { return m_scoring; }

    // --- keys and the mouse ----------------------------------------------------------
    // A key the window handles before its controls.
    enum class WindowKey {
        Character,
        // A dead key, given as its spacing accent; it composes with the next
        // character.
        DeadKey,
        Delete,
        Enter,
        Escape,
        F1,
        F2,
        F3,
        F4,
        F5,
        MenuKey,
        ToggleAuto,
        ToggleSounds,
        BackToMenu,
        Names,
        History,
        Design,
        Other
    };
    // Whether a key reaches the board at all: behind a lock nothing does, and
    // an open session panel lets through only F4, which closes it.
    bool keyReachesBoard(WindowKey key) const;
    GameStart keyTyped(WindowKey key, char32_t character = 0);
    // What the last key changed on the board.
    BoardAreas changedAreas() const { return m_changed; }
    // The JUGAR button.
    GameStart playPressed();
    void hoverKey(int key);
    void leaveKeys();
    void pressKey(int key);
    // The release of the mouse anywhere; a click completes on the key it began.
    void releaseMouse(int keyUnderMouse);
    KeyLook keyFace(int key) const;
    int hoveredKey() const { return m_hoveredKey; }
    int pressedKey() const { return m_pressedKey; }

    // The label over the eighth strike mark offers the correction on hover.
    void hoverCorrection();
    void restoreFaces();
    const std::string& correctionCaption() const { return m_correctionCaption; }
    const std::string& correctionTooltip() const { return m_correctionTooltip; }

    // The small JUGAR button works like the big one, but not behind a lock.
    bool smallPlayEnabled() const { return m_scoring.playEnabled() && !m_shared.locked; }
    // In a game with friends, or without points, the JUGAR panel and the
    // theme move to their compact places beside the board.
    bool compactLayout() const { return !m_scoring.pointsCount(); }

    // --- survival mode -------------------------------------------------------------
    // The popup's "Modo supervivencia" / "Modo normal", offered to one player
    // with the points system on.
    bool survivalEntryShown() const { return m_scoring.pointsCount(); }
    void toggleSurvival();
    // enterSurvival and leaveSurvival: the mode is saved and the board
    // reopens where it stands, in the new mode.
    void enterSurvival() { switchSurvival(true); }
    void leaveSurvival() { switchSurvival(false); }
    // F5: asks before leaving survival mode; does nothing out of it.
    void askLeaveSurvival();
    bool reopenRequested() const { return m_reopen; }
    // Once the window's top is checked, the switch of mode is told once.
    void tickAnnounce();
    // The score's text while survival points run low.
    ScorePulse& scorePulse() { return m_pulse; }
    const ScorePulse& scorePulse() const { return m_pulse; }
    // "Reiniciar" and "Consigue puntos", shown while survival has no points.
    bool againShown() const { return m_scoring.noPoints(); }
    void againRestart() { restartNow(); }
    void againGetPoints() { leaveSurvival(); }

    // --- side panels --------------------------------------------------------------
    SidePanelModel& side() { return m_side; }
    const SidePanelModel& side() const { return m_side; }
    // Esc and the clicks that put the side panels away roll the statistics
    // up as well.
    void closeSidePanels();
    StatsPanelModel& stats() { return m_stats; }
    const StatsPanelModel& stats() const { return m_stats; }
    // "Estadísticas".
    void openStats() { m_stats.open(); }
    // "Historial" and Ctrl+H: the history comes up in place of the
    // statistics, or goes away with the other side panels.
    void toggleHistory();
    HistoryPanelModel& history() { return m_history; }
    const HistoryPanelModel& history() const { return m_history; }
    // "Temas seleccionados", from the theme label's menu.
    void openThemesPanel();
    const ThemesPanelModel& themesPanel() const { return m_themesPanel; }
    // The tip strip and its ticker ("Dame un consejo").
    TipModel& tip() { return m_tip; }

    // --- menu entries --------------------------------------------------------------
    void clearBoard() { m_round.clearBoard(); }
    void toggleAutoPhrase() { m_round.toggleAutoPhrase(); }
    // The sound button, "Mostrar sonidos" and Ctrl+S.
    void toggleSounds();
    const char* soundButtonTooltip() const {
        return m_shared.settings.sounds ? " Ocultar Sonidos " : " Mostrar Sonidos ";
    }
    // "Estado animado"; a still board puts the tip strip away too.
    void toggleAnimation();
    // F3: asks first. The popup's "Reiniciar" restarts at once.
    void askRestart();
    void restartNow();
    bool restartRequested() const { return m_restart; }
    // "Volver al menú", Alt+Backspace.
    void backToMenu();
    bool menuRequested() const { return m_toMenu; }
    // "Desaparecer botón" and the restore label.
    void hidePlayButton(bool hidden);
    // A click on the board's background: closes the side panels, and plays
    // when the JUGAR button is hidden.
    GameStart backgroundClicked();

    // --- the desktop ----------------------------------------------------------------
    // "¿Qué es eso?" under the board once a game is over: the phrase, in
    // small letters, on the search engine or the encyclopedia.
    void lookUpAnswer();
    // The history's "Buscar" menu: the entry chosen for it.
    void lookUpHistoryEntry();
    // F1 and "Ayuda".
    void openHelp();
    // "Acerca".
    void showAbout();

    // --- players -----------------------------------------------------------------
    // The player whose turn it is, as the label shows it.
    const PlayerLabel& playerLabel() const { return m_player; }
    void refreshPlayerLabel();
    // The mouse passes over a player label.
    void hoverPlayer();
    bool turnMovesEnabled() const { return quillora::turnMovesEnabled(m_shared); }
    bool freeTurn() const { return freeTurnOn(m_shared); }
    void moveTurnForward();
    void moveTurnBack();
    void toggleFreeTurn();
    // The players window closed with the names stored.
    void namesClosed();
    // A moment after the board opens, a game with friends starts with their names.
    bool namesAtStart() const { return m_shared.multiplayer; }
    // A friend's phrase accepted in "LA FRASE ES:".
    void friendPhrase(const std::string& phrase, const std::string& themeText);

    // --- sessions ------------------------------------------------------------------
    SessionPanelModel& panel() { return m_panel; }
    const SessionPanelModel& panel() const { return m_panel; }
    void toggleSessionPanel();
    void toggleSessionList();
    std::vector<Sessions::Entry> sessionEntries() const { return m_sessions.entries(); }
    std::string displayName() const { return m_shared.currentSession().displayName; }
    bool deleteShown() const { return m_shared.currentSlot != 0; }
    void addSession(const std::string& typedName, std::string& shownName);
    void switchSession(int slot);
    void deleteSession();
    bool dropsAccepted() const { return !m_shared.locked; }
    void dropFiles(const std::vector<std::string>& paths);
    void keyEntered(const std::string& typed);

    // --- timers ----------------------------------------------------------------------
    // The sound tick: the sound to play now, 1..6, or 0 for none. A new game's
    // score waits for its opening sound, until soundEnded.
    int tickSound();
    void soundEnded(int number);
    void tickScore();
    bool scoreTimerRunning() const { return m_scoring.counting(); }
    // One second of countdown mode gone.
    void tickCountdown();
    bool countdownTimerRunning() const { return m_countdown.running(); }
    const Countdown& countdown() const { return m_countdown; }
    // White while time is plenty, the game colour when it runs short.
    Rgb countdownColour() const { return m_countdown.urgent() ? gameColour() : kWhite; }

    // The keyboard sliding out, and the window's height and climb with it.
    KeyboardSlide& slide() { return m_slide; }
    const KeyboardSlide& slide() const { return m_slide; }

    // --- colours ----------------------------------------------------------------------
    LampColours lampColours() const;
    Rgb gameColour() const { return m_shared.palette.gameColour; }
    Rgb shade() const { return shadeOf(m_shared.palette.gameColour); }
    // The cells' style, the colours and the background picture.
    BoardAppearance& appearance() { return m_appearance; }
    const BoardAppearance& appearance() const { return m_appearance; }

    // --- the design window ---------------------------------------------------------
    // "Cambiar diseño" and Ctrl+D. After a death the missed letters keep
    // their colour until the next game, so the design, which repaints the
    // cells, waits for it.
    bool designOffered() const { return m_round.designEnabled(); }

private:
    // The round's hand-overs pass through here: the window opens its keyboard
    // when a phrase is laid, scores the end of a game and saves the options,
    // then whoever else listens hears of it.
    void nextTurn() override;
    void phraseLaid() override;
    void roundWon() override;
    void roundLost() override;
    void roundEnded(const std::string& answerText) override { m_history.add(answerText); }
    void answerBoxOpened() override { m_side.closeSidePanels(); }
    void countdownStopped() override;
    void correctionAsked(bool asking) override;
    void settingsChanged() override;
    void titleChanged() override { m_scoring.refreshTitle(); }
    bool scoreCounting() const override { return m_scoring.counting(); }

    void sessionChanged(bool changed);
    BoardAreas guessAreas(bool wasInPlay) const;
    void switchSurvival(bool on);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    WebLookUp& m_lookUp;
    RoundEvents m_noEvents;
    RoundEvents& m_outer;
    Round m_round;
    Scoring m_scoring;
    Countdown m_countdown;
    Sessions m_sessions;
    SessionPanelModel m_panel;
    SidePanelModel m_side;
    StatsPanelModel m_stats;
    HistoryPanelModel m_history;
    ThemesPanelModel m_themesPanel;
    char32_t m_deadKey = 0;
    BoardAreas m_changed = BoardAreas::everything();
    bool m_reopen = false;
    bool m_loadFailed = false;
    Random& m_random;
    TipModel m_tip{m_random};
    int m_hoveredKey = -1;
    int m_pressedKey = -1;
    std::string m_correctionCaption;
    std::string m_correctionTooltip = " Octavo Strike. ";
    bool m_restart = false;
    bool m_toMenu = false;
    PlayerLabel m_player;
    BoardAppearance m_appearance{m_shared};
    ScorePulse m_pulse{m_scoring};
    KeyboardSlide m_slide{m_shared.settings};
};

} // namespace quillora
