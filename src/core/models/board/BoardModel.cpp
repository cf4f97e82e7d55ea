// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardModel.h"

#include "desktop/About.h"
#include "desktop/WebLookUp.h"
#include "look/Picture.h"
#include "ports/Dialogs.h"
#include "round/Keyboard.h"
#include "storage/ConfigFile.h"
#include "words/Text.h"

#include <exception>

namespace quillora {

namespace {
constexpr int kSoundWarning = 1;
constexpr int kSoundNewPhrase = 2;
constexpr int kPlaying = 0;
} // namespace

BoardModel::BoardModel(SharedState& shared, Dialogs& dialogs, Random& random, WebLookUp& lookUp,
                       RoundEvents* events)
    : m_shared(shared), m_dialogs(dialogs), m_lookUp(lookUp),
      m_outer(events ? *events : m_noEvents), m_round(shared, dialogs, random, this),
      m_scoring(shared, dialogs), m_sessions(shared, dialogs, random), m_panel(shared),
      m_stats(shared), m_history(shared, dialogs), m_themesPanel(shared), m_random(random) {
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
            m_panel.openLocked();
        }
    });
    step([this] { m_history.load(); });
    step([this] {
        clearForBoardLoad(m_shared);
        readSessionFile(m_shared, m_random);
        applyLineValues(m_shared);
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
        m_round.showTourMarker();
    }
    step([this] { refreshPlayerLabel(); });
    // A keyboard kept open is there at once; the climb that follows an
    // opening belongs to the keyboard sliding out, which it does not.
    if (m_shared.settings.keyboardKeptOpen) {
        m_slide.showAtOnce();
    }
}

std::string BoardModel::windowTitle() const {
    return m_loadFailed ? m_scoring.title() + " | Error al cargar datos" : m_scoring.title();
}

void BoardModel::closeSidePanels() {
    m_side.closeSidePanels();
    m_stats.close();
}

void BoardModel::toggleHistory() {
    if (m_side.showing(SidePanelModel::Content::History)) {
        closeSidePanels();
        return;
    }
    m_stats.close();
    m_side.show(SidePanelModel::Content::History);
}

void BoardModel::openThemesPanel() {
    m_themesPanel.fill();
    m_side.show(SidePanelModel::Content::Themes);
    saveSettings(m_shared, m_dialogs);
}

void BoardModel::correctionAsked(bool asking) {
    if (asking) {
        m_countdown.pause();
        m_side.showEmpty();
    } else {
        m_countdown.resume();
        m_side.closeSidePanels();
    }
    m_outer.correctionAsked(asking);
}

// --- round hand-overs ---------------------------------------------------------------

void BoardModel::refreshPlayerLabel() {
    m_player = quillora::playerLabelFor(m_shared, m_player.caption);
}

void BoardModel::hoverPlayer() {
    if (!freeTurn()) {
        refreshPlayerLabel();
    }
}

void BoardModel::moveTurnForward() {
    quillora::moveTurnForward(m_shared);
    refreshPlayerLabel();
}

void BoardModel::moveTurnBack() {
    quillora::moveTurnBack(m_shared);
    refreshPlayerLabel();
}

void BoardModel::toggleFreeTurn() {
    quillora::toggleFreeTurn(m_shared);
    refreshPlayerLabel();
}

void BoardModel::namesClosed() {
    refreshPlayerLabel();
    saveSettings(m_shared, m_dialogs);
}

void BoardModel::friendPhrase(const std::string& phrase, const std::string& themeText) {
    refreshPlayerLabel();
    m_round.startPhrase(phrase, 0, themeText);
}

void BoardModel::nextTurn() {
    passTurn(m_shared);
    refreshPlayerLabel();
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
    return !m_panel.shown() || key == WindowKey::F4;
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

GameStart BoardModel::keyTyped(WindowKey key, char32_t character) {
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
        }
        break;
    case WindowKey::F2:
        m_round.clearBoard();
        break;
    case WindowKey::F3:
        askRestart();
        break;
    case WindowKey::F4:
        toggleSessionPanel();
        break;
    case WindowKey::ToggleAuto:
        m_round.toggleAutoPhrase();
        break;
    case WindowKey::ToggleSounds:
        toggleSounds();
        break;
    case WindowKey::BackToMenu:
        backToMenu();
        break;
    case WindowKey::Escape:
        closeSidePanels();
        break;
    case WindowKey::History:
        toggleHistory();
        break;
    // The windows and panels these open come with their own features.
    case WindowKey::F5:
        askLeaveSurvival();
        break;
    case WindowKey::F1:
        openHelp();
        break;
    case WindowKey::DeadKey:
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

void BoardModel::hoverKey(int key) {
    if (m_pressedKey >= 0) {
        return;
    }
    m_hoveredKey = key;
    restoreFaces();
}

void BoardModel::leaveKeys() {
    if (m_pressedKey < 0) {
        m_hoveredKey = -1;
    }
}

void BoardModel::pressKey(int key) {
    m_pressedKey = key;
}

void BoardModel::releaseMouse(int keyUnderMouse) {
    const int pressed = m_pressedKey;
    m_pressedKey = -1;
    m_hoveredKey = keyUnderMouse;
    restoreFaces();
    if (pressed >= 0 && pressed == keyUnderMouse) {
        // The clicked key returns to its resting face before it is guessed.
        if (pressed <= 37) {
            m_hoveredKey = -1;
        }
        m_round.clickKey(pressed);
    }
}

KeyLook BoardModel::keyFace(int key) const {
    return keyLook(key, key == m_hoveredKey, key == m_pressedKey, m_shared.palette);
}

void BoardModel::hoverCorrection() {
    if (m_round.correctionOffered()) {
        m_correctionCaption = "<";
        m_correctionTooltip = " Borrar un strike. ";
    }
}

void BoardModel::restoreFaces() {
    m_correctionCaption.clear();
    m_correctionTooltip = " Octavo Strike. ";
}

// --- menu entries ----------------------------------------------------------------------

void BoardModel::toggleSounds() {
    m_shared.settings.sounds = !m_shared.settings.sounds;
    saveSettings(m_shared, m_dialogs);
}

void BoardModel::toggleAnimation() {
    m_shared.settings.animated = !m_shared.settings.animated;
    if (!m_shared.settings.animated) {
        m_tip.stop();
    }
    saveSettings(m_shared, m_dialogs);
}

void BoardModel::backToMenu() {
    if (m_round.backToMenu()) {
        m_toMenu = true;
    }
}

void BoardModel::hidePlayButton(bool hidden) {
    m_shared.settings.playButtonHidden = hidden;
    saveSettings(m_shared, m_dialogs);
}

GameStart BoardModel::backgroundClicked() {
    closeSidePanels();
    if (m_shared.settings.playButtonHidden) {
        return playPressed();
    }
    return GameStart::Nothing;
}

void BoardModel::askRestart() {
    if (m_dialogs.okCancel("Está apunto de reiniciar el juego, se borrará todo.")) {
        restartNow();
    }
}

void BoardModel::restartNow() {
    m_restart = true;
    if (m_shared.sessionLoaded) {
        m_shared.current().selectedThemes = {};
    }
}

// --- survival mode ----------------------------------------------------------------------

void BoardModel::toggleSurvival() {
    switchSurvival(!m_shared.settings.survival);
}

void BoardModel::switchSurvival(bool on) {
    m_shared.survivalAnnounce = true;
    m_shared.settings.survival = on;
    saveSettings(m_shared, m_dialogs);
    m_reopen = true;
}

void BoardModel::askLeaveSurvival() {
    if (!m_scoring.pointsCount() || !m_shared.settings.survival) {
        return;
    }
    if (m_dialogs.okCancel("Está apunto de salirse del modo supervivencia.")) {
        leaveSurvival();
    }
}

void BoardModel::tickAnnounce() {
    if (!m_shared.survivalAnnounce) {
        return;
    }
    // Cleared first: the box's own event loop runs this timer again.
    m_shared.survivalAnnounce = false;
    m_dialogs.information(m_shared.settings.survival
                              ? "El modo supervivencia se ha activado."
                              : "El modo supervivencia se ha desactivado, haga clic derecho sobre "
                                "el score para tener puntos en supervivencia.");
}

// --- sessions --------------------------------------------------------------------------

void BoardModel::toggleSessionPanel() {
    if (m_panel.shown() && m_shared.locked) {
        return;
    }
    const bool playing = m_round.status().rfind("JUGANDO", kPlaying) == 0;
    m_panel.toggleSessionPanel(static_cast<int>(m_sessions.entries().size()), playing);
}

void BoardModel::toggleSessionList() {
    if (!m_panel.listShown() && m_round.state().manyErrors) {
        m_dialogs.exclamation("No se puede cambiar de sesión, termine la partida.");
        return;
    }
    m_panel.toggleList(static_cast<int>(m_sessions.entries().size()));
}

void BoardModel::sessionChanged(bool changed) {
    if (changed) {
        restartNow();
    }
}

void BoardModel::addSession(const std::string& typedName, std::string& shownName) {
    shownName = typedName;
    sessionChanged(m_sessions.add(typedName, m_round.state().manyErrors, shownName));
}

void BoardModel::switchSession(int slot) {
    sessionChanged(m_sessions.switchTo(slot, m_round.state().manyErrors));
}

void BoardModel::deleteSession() {
    sessionChanged(m_sessions.deleteCurrent());
}

void BoardModel::dropFiles(const std::vector<std::string>& paths) {
    // A user brought in by a dropped file would walk past the lock.
    if (!dropsAccepted()) {
        return;
    }
    // A picture becomes the background at once; the design window decides
    // whether it is kept.
    std::vector<std::string> others;
    for (const std::string& path : paths) {
        if (isPictureName(path)) {
            m_appearance.dropPicture(path);
        } else {
            others.push_back(path);
        }
    }
    if (!others.empty()) {
        sessionChanged(m_sessions.addFromFiles(others, m_round.state().manyErrors));
    }
}

void BoardModel::keyEntered(const std::string& typed) {
    m_panel.enterKey(typed);
}

// --- timers ----------------------------------------------------------------------------

int BoardModel::tickSound() {
    return m_round.pendingSound().tick();
}

void BoardModel::soundEnded(int number) {
    // The score of a new game counts once its opening sound is over.
    if (number == kSoundNewPhrase) {
        m_scoring.startCounting();
    }
}

void BoardModel::tickCountdown() {
    switch (m_countdown.tick()) {
    case Countdown::Tick::Warning:
        m_round.pendingSound().request(kSoundWarning, m_shared.settings.sounds);
        break;
    case Countdown::Tick::TimeUp:
        m_round.timeUp();
        break;
    case Countdown::Tick::Nothing:
        break;
    }
}

void BoardModel::tickScore() {
    m_scoring.tick(m_round.strikeCountForScore());
}

LampColours BoardModel::lampColours() const {
    return quillora::lampColours(m_round.lamp(), m_shared.palette);
}

void BoardModel::lookUpAnswer() {
    m_lookUp.openLookUp(lowerCase(toUtf8(m_round.board().answerText())),
                        m_shared.settings.useEncyclopedia);
}

void BoardModel::lookUpHistoryEntry() {
    m_lookUp.openLookUp(m_history.lookUpText(), m_shared.settings.useEncyclopedia);
}

void BoardModel::openHelp() {
    m_lookUp.openHelp();
}

void BoardModel::showAbout() {
    quillora::showAbout(m_dialogs);
}

} // namespace quillora
