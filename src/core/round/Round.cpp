// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Round.h"

#include "ports/Dialogs.h"
#include "round/ThemeSelection.h"
#include "state/SharedState.h"
#include "words/Text.h"

namespace quillora {

namespace {

constexpr int kManyErrorsStrikes = 5;
constexpr int kPanicStrikes = 7;
constexpr int kDeathStrikes = 8;

// The sounds the game asks for, by resource number less 100.
constexpr int kSoundWarning = 1;
constexpr int kSoundNewPhrase = 2;
constexpr int kSoundLost = 3;
constexpr int kSoundStrike = 4;
constexpr int kSoundWon = 5;
constexpr int kSoundRight = 6;

const std::string kPlaying = "JUGANDO";
const std::string kNewGame = "NUEVA PARTIDA";
const std::string kPlay = "JUGAR";
const std::string kLeaveQuestion = "¿Seguro de salirse de la partida?";

} // namespace

Round::Round(SharedState& shared, Dialogs& dialogs, Random& random, RoundEvents* events)
    : m_shared(shared), m_dialogs(dialogs), m_events(events ? *events : m_noEvents),
      m_answerBox(*this, dialogs, m_events), m_choice(*this, shared, random, m_events) {
    // The listener may not be built yet: the board's first reset tells it
    // nothing.
    resetBoard();
}

bool Round::pointsCount() const {
    return !m_shared.multiplayer && m_shared.settings.pointsSystem;
}

void Round::requestSound(int number) {
    m_sound.request(number, m_shared.settings.sounds);
}

void Round::light(Lamp lamp) {
    m_lamp = lamp;
    if (!m_state.over) {
        m_lampTimerRunning = true;
    }
}

void Round::tickLamp() {
    if (!m_state.over) {
        m_lamp = Lamp::None;
    }
    m_lampTimerRunning = false;
}

void Round::tickStatus() {
    if (m_status.rfind(kPlaying, 0) != 0) {
        return;
    }
    if (!m_shared.settings.animated) {
        m_status = kPlaying;
        return;
    }
    const std::size_t dots = m_status.size() - kPlaying.size();
    m_status = kPlaying + std::string(dots >= 3 ? 0 : dots + 1, '.');
}

// --- starting and resetting ------------------------------------------------------

GameStart Round::pressPlay() {
    const bool underWay = !m_state.manyErrors && !m_state.waitingForPhrase && !m_state.over;
    if (underWay && !m_dialogs.yesNo(kLeaveQuestion)) {
        return GameStart::Nothing;
    }
    return play();
}

GameStart Round::play() {
    if (m_playCaption == kNewGame) {
        if (!m_events.scoreCounting()) {
            clearBoard();
        }
        return GameStart::Nothing;
    }
    if (!m_shared.multiplayer && m_shared.settings.survival && m_shared.survivalPoints <= 0) {
        m_dialogs.message(Dialogs::Icon::Exclamation,
                          "Reinicia el juego o consigue puntos para volver a jugar en este modo.",
                          "No puedes jugar sin puntos");
        return GameStart::Nothing;
    }
    if (m_shared.multiplayer) {
        return GameStart::FriendWindow;
    }
    if (!m_shared.settings.autoPhrase) {
        return GameStart::ThemeWindow;
    }
    m_choice.layAutomaticPhrase();
    return GameStart::Started;
}

void Round::startPhrase(const std::string& phrase, int theme, const std::string& themeLabel) {
    m_pendingPhrase = toU32(phrase);
    m_pendingLetterTotal = PhraseBoard::countLetters(m_pendingPhrase);
    m_gameTheme = theme;
    m_playCaption = kNewGame;
    m_status = kPlaying + "...";
    m_themeLabel = themeLabel;
    m_newGameEnabled = true;
    layPendingPhrase();
}

void Round::layPendingPhrase() {
    if (!m_board.lay(m_pendingPhrase, m_pendingLetterTotal)) {
        return;
    }
    m_counterVisible = true;
    m_shared.previousPhraseNumber = m_choice.phraseNumber();
    m_shared.lastGameTheme = m_themeLabel;
    m_state.waitingForPhrase = false;
    requestSound(kSoundNewPhrase);
    m_events.phraseLaid();
}

void Round::clearBoard() {
    if (m_state.manyErrors) {
        m_dialogs.exclamation("Tienes bastantes errores, termina el juego.");
        return;
    }
    m_events.countdownStopped();
    m_newGameEnabled = false;
    m_playCaption = kPlay;
    m_board.clear();
    m_state.strikeSlots.fill("");
    m_status = kNewGame;
    m_figure.reset();
    startNewBoard();
}

void Round::startNewBoard() {
    resetBoard();
    // The title of the game just ended said what it was worth.
    m_events.titleChanged();
}

void Round::resetBoard() {
    m_designEnabled = true;
    // A friend's phrase leaves out its author; the next game counts everyone.
    m_shared.playerCount = m_shared.roster.rosterSize;
    m_lamp = Lamp::None;
    m_lampTimerRunning = false;
    m_deathColours = false;
    m_digitPanelVisible = false;
    m_counterVisible = false;
    m_answerBox.close();
    m_board.lay(U"", 0);
    m_state.over = false;
    m_lookUpVisible = false;
    m_state.waitingForPhrase = true;
    m_state.correctionUsed = false;
    m_state.hit = false;
    m_state.earlyAnswerBonus = false;
    m_state.strikeCount = 0;
    m_themeLabel.clear();
    m_board.RestoreKeyboard();
}

// --- guessing ----------------------------------------------------------------------

void Round::typeKey(char32_t typed) {
    m_lastGuess = GuessEffect::None;
    if (!inPlay()) {
        return;
    }
    const ComputerKey key = mapComputerKey(typed);
    switch (key.action) {
    case KeyAction::Guess:
        guess(key.letter);
        break;
    case KeyAction::ToggleAnswer:
        m_answerBox.toggle();
        break;
    case KeyAction::ToggleDigits:
        showDigitPanel(!m_digitPanelVisible);
        break;
    case KeyAction::None:
        break;
    }
}

void Round::clickKey(int key) {
    if (!inPlay() || key < 0 || key >= kKeyCount) {
        return;
    }
    if (key >= 1 && key <= 37) {
        guess(keyLetter(key));
    } else if (key == kWriteKey) {
        m_answerBox.toggle();
    } else {
        showDigitPanel(key == kDigitPanelKey);
    }
}

void Round::guess(char32_t letter) {
    if (!inPlay()) {
        return;
    }
    m_state.guessedLetter = letter;
    playGuessedLetter();
}

void Round::checkAlreadyTried() {
    m_state.alreadyTried = m_board.alreadyTried(m_state.guessedLetter);
}

void Round::playGuessedLetter() {
    m_state.hit = false;
    checkAlreadyTried();
    if (m_state.alreadyTried) {
        m_lastGuess = GuessEffect::AlreadyTried;
        lightYellowLamp();
        m_state.alreadyTried = false;
        m_events.guessPlayed();
        return;
    }
    m_state.hit = m_board.reveal(m_state.guessedLetter);
    m_lastGuess = m_state.hit ? GuessEffect::Hit : GuessEffect::Miss;
    recordMiss();
    checkWin();
    m_events.guessPlayed();
}

void Round::recordMiss() {
    if (!m_state.hit) {
        for (int n = 1; n <= RoundState::kSlots; ++n) {
            if (m_state.slot(n).empty()) {
                m_state.strikeCount = n;
                m_state.slot(n) = toUtf8(m_state.guessedLetter);
                break;
            }
        }
        if (m_state.strikeCount >= kDeathStrikes) {
            // The red lamp comes with the death itself.
            requestSound(kSoundLost);
        } else if (m_state.strikeCount == kPanicStrikes) {
            requestSound(kSoundWarning);
            lightRedLamp();
        } else {
            requestSound(kSoundStrike);
            lightRedLamp();
        }
    } else if (!m_board.complete()) {
        // The letter that completes the phrase leaves the sound to the win.
        requestSound(kSoundRight);
        lightGreenLamp();
    }
    advanceFigure();
}

void Round::advanceFigure() {
    const int strikes = m_state.strikeCount;
    m_figure.draw(strikes);
    m_state.manyErrors = strikes >= kManyErrorsStrikes && m_shared.settings.pointsSystem;
    if (strikes < kDeathStrikes) {
        return;
    }
    m_events.countdownStopped();
    endRound("¡MUERTO!");
    lightRedLamp();
    m_deathColours = true;
    m_board.showMissed();
    m_designEnabled = false;
    m_answerBox.close();
    if (pointsCount()) {
        m_events.roundLost();
    }
    m_events.endShown();
    m_events.settingsChanged();
}

void Round::endRound(const std::string& caption) {
    m_status = caption;
    m_counterVisible = false;
    m_state.over = true;
    // Every game ends under its theme's own name; a friend's phrase has
    // none, and shows the catalogue's "no theme".
    m_themeLabel = themeNameOf(m_shared, m_gameTheme);
    m_events.roundEnded(toUtf8(m_board.answerText()));
    m_choice.moveTourOn();
    m_lookUpVisible = true;
    m_state.manyErrors = false;
}

void Round::checkWin() {
    m_events.nextTurn();
    if (m_state.over || !m_board.complete()) {
        return;
    }
    endRound("¡VICTORIA!");
    requestSound(kSoundWon);
    m_events.countdownStopped();
    m_figure.calm();
    lightGreenLamp();
    if (pointsCount()) {
        m_events.roundWon();
    }
    m_events.endShown();
    m_events.settingsChanged();
}

// --- the whole answer ---------------------------------------------------------------

void Round::judgeAnswer(const std::u32string& answer) {
    if (answer == m_board.answerText()) {
        if (m_board.revealedCount() < m_board.letterTotal() / 2.0) {
            m_state.earlyAnswerBonus = true;
            m_state.strikeSlots.fill("");
        }
        m_board.revealAll();
        checkWin();
    } else {
        fillEmptySlots();
        requestSound(kSoundLost);
        m_state.strikeCount = kDeathStrikes;
        advanceFigure();
    }
}

void Round::fillEmptySlots() {
    for (auto& slot : m_state.strikeSlots) {
        if (slot.empty()) {
            slot = " ";
        }
    }
}

void Round::timeUp() {
    if (!inPlay()) {
        return;
    }
    fillEmptySlots();
    requestSound(kSoundLost);
    m_events.countdownStopped();
    m_state.strikeCount = kDeathStrikes;
    advanceFigure();
}

// --- the strike correction --------------------------------------------------------------

bool Round::correctionOffered() const {
    return m_shared.correctionsLeft >= 1 && !m_state.correctionUsed && !m_state.over &&
           m_state.strikeCount > 0 && !m_state.hit;
}

std::string Round::correctionQuestion(int correctionsLeft) {
    return "La corrección de strikes es muy limitado, sólo tienes " +
           std::to_string(correctionsLeft) +
           (correctionsLeft == 1 ? " oportunidad " : " oportunidades ") +
           "para corregir en todo el juego. ¿Deseas usar una?";
}

void Round::takeBackStrike() {
    if (!correctionOffered()) {
        return;
    }
    m_events.correctionAsked(true);
    if (m_dialogs.yesNo(correctionQuestion(m_shared.correctionsLeft))) {
        --m_state.strikeCount;
        --m_shared.correctionsLeft;
        m_state.correctionUsed = true;
        m_board.dropLastTried();
        m_board.RestoreKeyboard();
        for (int k = RoundState::kSlots - 1; k >= 1; --k) {
            if (!m_state.slot(k).empty() && m_state.slot(k + 1).empty()) {
                m_state.slot(k).clear();
                break;
            }
        }
        m_figure.reset();
        advanceFigure();
        if (m_shared.correctionsLeft == 2) {
            m_dialogs.information(
                "Has usado una de tus correcciones, para usar otra tienes que jugar otra partida.");
        }
    }
    m_events.correctionAsked(false);
}

// --- leaving ----------------------------------------------------------------------------

bool Round::backToMenu() {
    if (m_state.manyErrors) {
        m_dialogs.exclamation("Tiene bastantes errores, termine la partida.");
        return false;
    }
    if (!m_state.waitingForPhrase && !m_state.over) {
        return m_dialogs.yesNo(kLeaveQuestion);
    }
    return true;
}

} // namespace quillora
