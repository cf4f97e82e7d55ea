// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardModel.h"

#include "ports/Dialogs.h"
#include "round/Keyboard.h"
#include "storage/ConfigFile.h"

#include <exception>

namespace quillora {

namespace {
constexpr int kSoundWarning = 1;
constexpr int kSoundNewPhrase = 2;
} // namespace

BoardModel::BoardModel(SharedState& shared, Dialogs& dialogs, Announcer& announcer, Random& random,
                       WebLookUp& lookUp, RoundEvents* events)
    : m_shared(shared), m_dialogs(dialogs), m_announcer(announcer),
      m_outer(events ? *events : m_noEvents), m_random(random),
      m_round(shared, dialogs, random, this), m_scoring(shared, dialogs),
      m_sessions(shared, dialogs, random, m_round, m_commands, m_appearance),
      m_lookUps(shared, dialogs, lookUp, m_round, m_panels.history()) {
    // Scoring calls these only when points count. A loss is counted before
    // its points, under the same trap, so a full counter earns the gift.
    m_scoring.onWinStatistics = [this](int points) {
        m_shared.current().stats.countWin(points, m_round.state().strikeCount,
                                          m_shared.settings.survival);
    };
    m_scoring.onLossStatistics = [this] {
        m_shared.current().stats.countLoss(m_round.state().strikeCount, m_shared.settings.survival);
    };
    // Points moved into survival start both records afresh.
    m_scoring.onStatisticsReset = [this] { m_shared.current().stats.reset(); };
    m_turn.onMoved = [this] { m_narration.turnMoved(); };
}

void BoardModel::load() {
    // Each step stands alone: one that fails leaves a board that still plays.
    auto step = [this](auto&& run) {
        try {
            run();
        } catch (const std::exception&) {
            m_loadFailed = true;
        }
    };
    step([this] {
        if (m_shared.locked) {
            m_sessions.panel().openLocked();
        }
    });
    step([this] { m_panels.history().load(); });
    step([this] {
        loadSessionSettings(m_shared, m_random);
        m_appearance.applyLetterStyle();
        m_appearance.showStoredPicture();
    });
    m_tip.rest(m_shared.settings.animated);
    step([this] {
        m_scoring.refreshTitle();
        m_scoring.showAccount();
    });
    // A tour that is still running keeps the automatic phrase on.
    if (m_shared.tourPosition >= 1) {
        m_shared.settings.autoPhrase = true;
        m_round.phraseChoice().showTourMarker();
    }
    step([this] { m_turn.refresh(); });
    // A keyboard kept open is there at once; the climb that follows an
    // opening belongs to the keyboard sliding out, which it does not.
    if (m_shared.settings.keyboardKeptOpen) {
        m_slide.showAtOnce();
    }
}

std::string BoardModel::windowTitle() const {
    return m_loadFailed ? m_scoring.title() + " | Error al cargar datos" : m_scoring.title();
}

void BoardModel::correctionAsked(bool asking) {
    if (asking) {
        m_strikesBeforeCorrection = m_round.state().strikeCount;
        m_countdown.pause();
        m_panels.side().showEmpty();
    } else {
        m_countdown.resume();
        m_panels.side().closeSidePanels();
        if (m_round.state().strikeCount < m_strikesBeforeCorrection) {
            m_narration.strikeTakenBack();
        }
    }
    m_outer.correctionAsked(asking);
}

// --- round hand-overs ---------------------------------------------------------------

void BoardModel::friendPhrase(const std::string& phrase, const std::string& themeText) {
    m_turn.refresh();
    m_round.startPhrase(phrase, 0, themeText);
}

void BoardModel::nextTurn() {
    m_turn.pass();
    m_outer.nextTurn();
}

void BoardModel::phraseLaid() {
    m_appearance.applyLetterStyle();
    m_countdown.start(m_round.board().letterTotal(), m_shared.settings.countdown,
                      !m_scoring.severalPlayers());
    m_slide.open();
    // With sounds off nothing waits for the opening sound: the score settles
    // at once.
    if (!m_shared.settings.sounds) {
        m_scoring.startCounting();
    }
    m_narration.phraseLaid();
    m_outer.phraseLaid();
}

void BoardModel::countdownStopped() {
    m_countdown.stop();
    m_outer.countdownStopped();
}

void BoardModel::roundWon() {
    m_scoring.scoreWin(m_round.board().revealedCount(), m_round.state().strikeCount,
                       m_round.earlyAnswerBonusFlag());
    m_outer.roundWon();
}

void BoardModel::roundLost() {
    m_scoring.scoreLoss(m_round.board().revealedCount(), m_round.board().letterTotal());
    m_outer.roundLost();
}

void BoardModel::settingsChanged() {
    saveSettings(m_shared, m_dialogs);
    m_outer.settingsChanged();
}

// --- keys ------------------------------------------------------------------------------

bool BoardModel::keyReachesBoard(WindowKey key) const {
    if (m_shared.locked) {
        return false;
    }
    return !m_sessions.panel().shown() || key == WindowKey::F4;
}

BoardAreas BoardModel::guessAreas(bool wasInPlay) const {
    // A game that ends, or a key that was not a guess, may change anything.
    if (m_round.inPlay() != wasInPlay) {
        return BoardAreas::everything();
    }
    switch (m_round.lastGuess()) {
    case Round::GuessEffect::AlreadyTried:
        return BoardArea::Lamps;
    case Round::GuessEffect::Hit:
        return BoardArea::Cells | BoardArea::Counter | BoardArea::Keys | BoardArea::Lamps |
               BoardArea::Turn | BoardArea::Status;
    case Round::GuessEffect::Miss:
        return BoardArea::Strikes | BoardArea::Figure | BoardArea::Keys | BoardArea::Lamps |
               BoardArea::Turn | BoardArea::Status;
    case Round::GuessEffect::None:
        break;
    }
    return BoardAreas::everything();
}

bool BoardModel::fullScreen() const {
    return m_shared.boardFullScreen;
}

GameStart BoardModel::keyTyped(WindowKey key, char32_t character) {
    // How the board is shown is no part of the game: a lock or the session
    // panel does not hold these keys back.
    if (key == WindowKey::FullScreen || key == WindowKey::Escape) {
        m_shared.boardFullScreen = key == WindowKey::FullScreen && !m_shared.boardFullScreen;
        m_changed = BoardAreas::everything();
    }
    if (!keyReachesBoard(key)) {
        return GameStart::Nothing;
    }
    if (key == WindowKey::Character && m_deadKey != 0) {
        // What the keyboard composes is judged like what it types.
        character = composeDeadKey(m_deadKey, character);
    }
    m_deadKey = key == WindowKey::DeadKey ? character : 0;
    m_changed = BoardAreas::everything();
    switch (key) {
    case WindowKey::Delete:
        m_round.takeBackStrike();
        break;
    case WindowKey::Enter:
        return playPressed();
    case WindowKey::Character:
        if (character != 0) {
            const bool wasInPlay = m_round.inPlay();
            m_round.typeKey(character);
            m_changed = guessAreas(wasInPlay);
            if (m_round.lastGuess() == Round::GuessEffect::None) {
                m_narration.keyIgnored(character);
            }
        }
        break;
    case WindowKey::F2:
        m_round.clearBoard();
        break;
    case WindowKey::F3:
        m_commands.askRestart();
        break;
    case WindowKey::F4:
        m_sessions.togglePanel();
        break;
    case WindowKey::ToggleAuto:
        m_round.phraseChoice().toggleAutoPhrase();
        break;
    case WindowKey::ToggleSounds:
        m_commands.toggleSounds();
        break;
    case WindowKey::BackToMenu:
        m_commands.backToMenu();
        break;
    case WindowKey::Escape:
        m_panels.closeAll();
        break;
    case WindowKey::History:
        m_panels.toggleHistory();
        break;
    // The windows and panels these open come with their own features.
    case WindowKey::F5:
        m_survival.askLeave();
        break;
    case WindowKey::F1:
        m_lookUps.openHelp();
        break;
    case WindowKey::ReadBoard:
        m_narration.readBoard();
        break;
    case WindowKey::DeadKey:
    case WindowKey::FullScreen:
    case WindowKey::MenuKey:
    case WindowKey::Names:
    case WindowKey::Design:
    case WindowKey::Other:
        break;
    }
    return GameStart::Nothing;
}

GameStart BoardModel::playPressed() {
    if (m_scoring.counting() || !m_scoring.playEnabled()) {
        return GameStart::Nothing;
    }
    return m_round.pressPlay();
}

// --- menu entries ----------------------------------------------------------------------

GameStart BoardModel::backgroundClicked() {
    m_panels.closeAll();
    if (m_shared.settings.playButtonHidden) {
        return playPressed();
    }
    return GameStart::Nothing;
}

// --- timers ----------------------------------------------------------------------------

void BoardModel::soundEnded(int number) {
    // The score of a new game counts once its opening sound is over.
    if (number == kSoundNewPhrase) {
        m_scoring.startCounting();
    }
}

void BoardModel::tickScore() {
    const bool wasCounting = m_scoring.counting();
    m_scoring.tick(m_round.strikeCountForScore());
    if (wasCounting && !m_scoring.counting()) {
        m_narration.scoreSettled();
    }
}

void BoardModel::tickCountdown() {
    switch (m_countdown.tick()) {
    case Countdown::Tick::Warning:
        m_round.pendingSound().request(kSoundWarning, m_shared.settings.sounds);
        m_narration.clockWarning();
        break;
    case Countdown::Tick::TimeUp:
        m_narration.clockRanOut();
        m_round.timeUp();
        break;
    case Countdown::Tick::Nothing:
        break;
    }
}

} // namespace quillora
