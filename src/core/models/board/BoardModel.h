// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardAreas.h"
#include "models/board/BoardCommands.h"
#include "models/board/BoardLookUps.h"
#include "models/board/BoardNarration.h"
#include "models/board/BoardSessions.h"
#include "models/board/KeyFaces.h"
#include "models/board/KeyboardSlide.h"
#include "models/board/PlayersTurn.h"
#include "models/board/ScorePulse.h"
#include "models/board/SidePanels.h"
#include "models/board/SurvivalSwitch.h"
#include "models/board/TipModel.h"
#include "round/Round.h"
#include "scoring/Countdown.h"
#include "scoring/Points.h"
#include "state/SharedState.h"

#include <string>

namespace quillora {

class Announcer;
class WebLookUp;

// The board's coordinator. It holds the round and the parts that each own
// one concern beside it (the keys under the mouse, the menu's commands,
// survival, the players' turn, the side panels, the sessions, the look-ups,
// the keyboard's slide, the look), wires them to one another and to the
// round's hand-overs, and turns the keys the window passes on into moves.
// Each of the window's panels is given only the part it reads.
class BoardModel final : private RoundEvents {
public:
    static constexpr int kWidthTwips = kBoardWidthTwips;
    static constexpr int kBaseHeightTwips = kBoardBaseHeightTwips;
    static constexpr int kStatusTickMs = 500;
    static constexpr int kLampTickMs = 400;
    static constexpr int kScoreTickMs = 1;
    static constexpr int kNamesDelayMs = 500;
    static constexpr int kGiftTickMs = 1;

    BoardModel(SharedState& shared, Dialogs& dialogs, Announcer& announcer, Random& random,
               WebLookUp& lookUp, RoundEvents* events = nullptr);

    // The board's opening: the options of the current session are read and
    // applied, and a locked session shows its key panel at once. A step that
    // fails is passed over and the title says the data did not load.
    void load();
    bool loadFailed() const { return m_loadFailed; }
    // The window's title: the score's, with the load notice behind it.
    std::string windowTitle() const;

    Round& round() { return m_round; }
    const Round& round() const { return m_round; }
    SharedState& shared() { return m_shared; }
    Dialogs& dialogs() { return m_dialogs; }
    Scoring& scoring() { return m_scoring; }

    // The parts.
    KeyFaces& keyFaces() { return m_keyFaces; }
    BoardCommands& commands() { return m_commands; }
    SurvivalSwitch& survival() { return m_survival; }
    ScorePulse& scorePulse() { return m_pulse; }
    PlayersTurn& turn() { return m_turn; }
    SidePanels& panels() { return m_panels; }
    BoardSessions& sessions() { return m_sessions; }
    BoardLookUps& lookUps() { return m_lookUps; }
    TipModel& tip() { return m_tip; }
    KeyboardSlide& slide() { return m_slide; }
    const KeyboardSlide& slide() const { return m_slide; }
    BoardAppearance& appearance() { return m_appearance; }
    const Countdown& countdown() const { return m_countdown; }

    // --- keys ----------------------------------------------------------------------
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
        // F6, which no rule of the game uses: a player who cannot see the
        // board hears it read out.
        ReadBoard,
        // F11, which no rule of the game uses either: the board fills the
        // screen, for a classroom, or goes back to its window.
        FullScreen,
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
    // Whether the board fills the screen. F11 switches it whatever else the
    // board is doing, and Esc, besides its own work, leaves it.
    bool fullScreen() const;
    GameStart keyTyped(WindowKey key, char32_t character = 0);
    // What the last key changed on the board.
    BoardAreas changedAreas() const { return m_changed; }
    // The JUGAR button.
    GameStart playPressed();
    // A click on the board's background: closes the side panels, and plays
    // when the JUGAR button is hidden.
    GameStart backgroundClicked();
    // A friend's phrase accepted in "LA FRASE ES:".
    void friendPhrase(const std::string& phrase, const std::string& themeText);

    // --- timers ----------------------------------------------------------------------
    // A new game's score waits for its opening sound, until it ends.
    void soundEnded(int number);
    void tickScore();
    // One second of countdown mode gone.
    void tickCountdown();

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
    void guessPlayed() override { m_narration.letterPlayed(); }
    void endShown() override { m_narration.gameEnded(); }
    void roundEnded(const std::string& answerText) override { m_panels.history().add(answerText); }
    void answerBoxOpened() override { m_panels.side().closeSidePanels(); }
    void countdownStopped() override;
    void correctionAsked(bool asking) override;
    void settingsChanged() override;
    void titleChanged() override { m_scoring.refreshTitle(); }
    bool scoreCounting() const override { return m_scoring.counting(); }

    BoardAreas guessAreas(bool wasInPlay) const;

    SharedState& m_shared;
    Dialogs& m_dialogs;
    Announcer& m_announcer;
    RoundEvents m_noEvents;
    RoundEvents& m_outer;
    Random& m_random;
    Round m_round;
    Scoring m_scoring;
    Countdown m_countdown;
    TipModel m_tip{m_random};
    BoardAppearance m_appearance{m_shared};
    KeyFaces m_keyFaces{m_round, m_shared.palette};
    BoardCommands m_commands{m_shared, m_dialogs, m_round, m_tip};
    SurvivalSwitch m_survival{m_shared, m_dialogs, m_scoring, m_commands};
    ScorePulse m_pulse{m_scoring};
    PlayersTurn m_turn{m_shared, m_dialogs};
    SidePanels m_panels{m_shared, m_dialogs};
    BoardSessions m_sessions;
    BoardLookUps m_lookUps;
    KeyboardSlide m_slide{m_shared.settings};
    BoardNarration m_narration{m_announcer, m_round, m_scoring, m_countdown, m_turn};
    // The strikes before a correction is asked, to tell whether one was taken.
    int m_strikesBeforeCorrection = 0;
    char32_t m_deadKey = 0;
    BoardAreas m_changed = BoardAreas::everything();
    bool m_loadFailed = false;
};

} // namespace quillora
