// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmQlvs/QlvsModel.h"

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

QlvsModel::QlvsModel(SharedState& shared, Dialogs& dialogs, Random& random, WebLookUp& lookUp,
                     RoundEvents* events)
    : m_shared(shared), m_dialogs(dialogs), m_lookUp(lookUp),
      m_outer(events ? *events : m_noEvents), m_round(shared, dialogs, random, this),
      m_scoring(shared, dialogs), m_sessions(shared, dialogs, random), m_panel(shared),
      m_stats(shared), m_history(shared, dialogs), m_themesPanel(shared), m_random(random) {
    // Scoring calls these only when points count. A loss is counted before
    // its points, under the same trap, so a full counter earns the gift.
    m_scoring.onWinStatistics = [this](int points) {
        m_shared.current().stats.countWin(points, m_round.state().strikeCount,
                                          m_shared.settings.supervivencia);
    };
    m_scoring.onLossStatistics = [this] {
        m_shared.current().stats.countLoss(m_round.state().strikeCount,
                                           m_shared.settings.supervivencia);
    };
    // Points moved into survival start both records afresh.
    m_scoring.onStatisticsReset = [this] { m_shared.current().stats.reset(); };
}

void QlvsModel::load() {
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
        DataLoad(m_shared, m_random);
        ConfLoad(m_shared);
        applyLetterStyle();
        m_picture = m_shared.settings.fondo;
    });
    m_tip.rest(m_shared.settings.animacion);
    step([this] {
        m_scoring.refreshTitle();
        m_scoring.showAccount();
    });
    // A tour that is still running keeps the automatic phrase on.
    if (m_shared.tourPosition >= 1) {
        m_shared.settings.fraseAutomatica = true;
        m_round.showTourMarker();
    }
    step([this] { ePlayerName(); });
    // A keyboard kept open is there at once; the climb that follows an
    // opening belongs to the keyboard sliding out, which it does not.
    if (m_shared.settings.tecladoPermanente) {
        m_heightTwips = kBaseHeightTwips + kKeyboardExtraTwips;
        m_keyboardShown = true;
    }
}

std::string QlvsModel::windowTitle() const {
    return m_loadFailed ? m_scoring.title() + " | Error al cargar datos" : m_scoring.title();
}

void QlvsModel::eWinClose() {
    m_side.eWinClose();
    m_stats.close();
}

void QlvsModel::ePlayed() {
    if (m_side.showing(SidePanelModel::Content::History)) {
        eWinClose();
        return;
    }
    m_stats.close();
    m_side.show(SidePanelModel::Content::History);
}

void QlvsModel::eOpenList() {
    m_themesPanel.fill();
    m_side.show(SidePanelModel::Content::Themes);
    ConfSave(m_shared, m_dialogs);
}

void QlvsModel::correctionAsked(bool asking) {
    if (asking) {
        m_countdown.pause();
        m_side.showEmpty();
    } else {
        m_countdown.resume();
        m_side.eWinClose();
    }
    m_outer.correctionAsked(asking);
}

// --- round hand-overs ---------------------------------------------------------------

void QlvsModel::ePlayerName() {
    m_player = quillora::ePlayerName(m_shared, m_player.caption);
}

void QlvsModel::hoverPlayer() {
    if (!freeTurn()) {
        ePlayerName();
    }
}

void QlvsModel::adelantar() {
    quillora::adelantar(m_shared);
    ePlayerName();
}

void QlvsModel::atrasar() {
    quillora::atrasar(m_shared);
    ePlayerName();
}

void QlvsModel::toggleFreeTurn() {
    quillora::toggleFreeTurn(m_shared);
    ePlayerName();
}

void QlvsModel::namesClosed() {
    ePlayerName();
    ConfSave(m_shared, m_dialogs);
}

void QlvsModel::friendPhrase(const std::string& phrase, const std::string& themeText) {
    ePlayerName();
    m_round.startPhrase(phrase, 0, themeText);
}

void QlvsModel::nextTurn() {
    eNext(m_shared);
    ePlayerName();
    m_outer.nextTurn();
}

void QlvsModel::phraseLaid() {
    applyLetterStyle();
    m_countdown.start(m_round.board().letterTotal(), m_shared.settings.contratiempo,
                      !m_scoring.severalPlayers());
    openKeyboard();
    // With sounds off nothing waits for the opening sound: the score settles
    // at once.
    if (!m_shared.settings.sonidos) {
        m_scoring.startCounting();
    }
    m_outer.phraseLaid();
}

void QlvsModel::countdownStopped() {
    m_countdown.stop();
    m_outer.countdownStopped();
}

void QlvsModel::roundWon() {
    m_scoring.scoreWin(m_round.board().revealedCount(), m_round.state().strikeCount,
                       m_round.earlyAnswerBonusFlag());
    m_outer.roundWon();
}

void QlvsModel::roundLost() {
    m_scoring.scoreLoss(m_round.board().revealedCount(), m_round.board().letterTotal());
    m_outer.roundLost();
}

void QlvsModel::settingsChanged() {
    ConfSave(m_shared, m_dialogs);
    m_outer.settingsChanged();
}

// --- keys ------------------------------------------------------------------------------

bool QlvsModel::keyReachesBoard(WindowKey key) const {
    if (m_shared.locked) {
        return false;
    }
    return !m_panel.shown() || key == WindowKey::F4;
}

GameStart QlvsModel::keyTyped(WindowKey key, char32_t character) {
    if (!keyReachesBoard(key)) {
        return GameStart::Nothing;
    }
    if (key == WindowKey::Character && m_deadKey != 0) {
        // What the keyboard composes is judged like what it types.
        character = composeDeadKey(m_deadKey, character);
    }
    m_deadKey = key == WindowKey::DeadKey ? character : 0;
    switch (key) {
    case WindowKey::Delete:
        m_round.eBackStrike();
        break;
    case WindowKey::Enter:
        return playPressed();
    case WindowKey::Character:
        if (character != 0) {
            m_round.typeKey(character);
        }
        break;
    case WindowKey::F2:
        m_round.eMenuNew();
        break;
    case WindowKey::F3:
        eReBoot();
        break;
    case WindowKey::F4:
        eBlueScreen();
        break;
    case WindowKey::ToggleAuto:
        m_round.eMenuAuto();
        break;
    case WindowKey::ToggleSounds:
        toggleSounds();
        break;
    case WindowKey::BackToMenu:
        eMenuBack();
        break;
    case WindowKey::Escape:
        eWinClose();
        break;
    case WindowKey::History:
        ePlayed();
        break;
    // The windows and panels these open come with their own features.
    case WindowKey::F5:
        eSinSVivencia();
        break;
    case WindowKey::F1:
        eHelp();
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

GameStart QlvsModel::playPressed() {
    if (m_scoring.counting() || !m_scoring.playEnabled()) {
        return GameStart::Nothing;
    }
    return m_round.cmdGame();
}

void QlvsModel::hoverKey(int key) {
    if (m_pressedKey >= 0) {
        return;
    }
    m_hoveredKey = key;
    ColorFall();
}

void QlvsModel::leaveKeys() {
    if (m_pressedKey < 0) {
        m_hoveredKey = -1;
    }
}

void QlvsModel::pressKey(int key) {
    m_pressedKey = key;
}

void QlvsModel::releaseMouse(int keyUnderMouse) {
    const int pressed = m_pressedKey;
    m_pressedKey = -1;
    m_hoveredKey = keyUnderMouse;
    ColorFall();
    if (pressed >= 0 && pressed == keyUnderMouse) {
        // The clicked key returns to its resting face before it is guessed.
        if (pressed <= 37) {
            m_hoveredKey = -1;
        }
        m_round.clickKey(pressed);
    }
}

KeyLook QlvsModel::keyFace(int key) const {
    return keyLook(key, key == m_hoveredKey, key == m_pressedKey, m_shared.palette);
}

void QlvsModel::hoverQuit() {
    if (m_round.correctionOffered()) {
        m_quitCaption = "<";
        m_quitTooltip = " Borrar un strike. ";
    }
}

void QlvsModel::ColorFall() {
    m_quitCaption.clear();
    m_quitTooltip = " Octavo Strike. ";
}

// --- menu entries ----------------------------------------------------------------------

void QlvsModel::toggleSounds() {
    m_shared.settings.sonidos = !m_shared.settings.sonidos;
    ConfSave(m_shared, m_dialogs);
}

void QlvsModel::toggleAnimation() {
    m_shared.settings.animacion = !m_shared.settings.animacion;
    if (!m_shared.settings.animacion) {
        m_tip.stop();
    }
    ConfSave(m_shared, m_dialogs);
}

void QlvsModel::eMenuBack() {
    if (m_round.eMenuBack()) {
        m_toMenu = true;
    }
}

void QlvsModel::hidePlayButton(bool hidden) {
    m_shared.settings.sinBotonJugar = hidden;
    ConfSave(m_shared, m_dialogs);
}

GameStart QlvsModel::backgroundClicked() {
    eWinClose();
    if (m_shared.settings.sinBotonJugar) {
        return playPressed();
    }
    return GameStart::Nothing;
}

void QlvsModel::eReBoot() {
    if (m_dialogs.okCancel("Está apunto de reiniciar el juego, se borrará todo.")) {
        eDReBoot();
    }
}

void QlvsModel::eDReBoot() {
    m_restart = true;
    if (m_shared.sessionLoaded) {
        m_shared.current().selectedThemes = {};
    }
}

// --- survival mode ----------------------------------------------------------------------

void QlvsModel::toggleSurvival() {
    switchSurvival(!m_shared.settings.supervivencia);
}

void QlvsModel::switchSurvival(bool on) {
    m_shared.survivalAnnounce = true;
    m_shared.settings.supervivencia = on;
    ConfSave(m_shared, m_dialogs);
    m_reopen = true;
}

void QlvsModel::eSinSVivencia() {
    if (!m_scoring.pointsCount() || !m_shared.settings.supervivencia) {
        return;
    }
    if (m_dialogs.okCancel("Está apunto de salirse del modo supervivencia.")) {
        eDSinSVivencia();
    }
}

void QlvsModel::tickAnnounce() {
    if (!m_shared.survivalAnnounce) {
        return;
    }
    // Cleared first: the box's own event loop runs this timer again.
    m_shared.survivalAnnounce = false;
    m_dialogs.information(m_shared.settings.supervivencia
                              ? "El modo supervivencia se ha activado."
                              : "El modo supervivencia se ha desactivado, haga clic derecho sobre "
                                "el score para tener puntos en supervivencia.");
}

void QlvsModel::tickPulse() {
    m_pulseLevel += m_pulseFalling ? -kPulseStep : kPulseStep;
    if (m_pulseLevel <= kPulseLow) {
        m_pulseFalling = false;
    } else if (m_pulseLevel >= kPulseHigh) {
        m_pulseFalling = true;
    }
}

Rgb QlvsModel::scoreTextColour() const {
    if (!pulseTimerRunning()) {
        return kNearWhite;
    }
    return Rgb{m_pulseLevel, m_pulseLevel, m_pulseLevel};
}

// --- sessions --------------------------------------------------------------------------

void QlvsModel::eBlueScreen() {
    if (m_panel.shown() && m_shared.locked) {
        return;
    }
    const bool playing = m_round.status().rfind("JUGANDO", kPlaying) == 0;
    m_panel.eBlueScreen(static_cast<int>(m_sessions.entries().size()), playing);
}

void QlvsModel::toggleSessionList() {
    if (!m_panel.listShown() && m_round.state().manyErrors) {
        m_dialogs.exclamation("No se puede cambiar de sesión, termine la partida.");
        return;
    }
    m_panel.toggleList(static_cast<int>(m_sessions.entries().size()));
}

void QlvsModel::sessionChanged(bool changed) {
    if (changed) {
        eDReBoot();
    }
}

void QlvsModel::addSession(const std::string& typedName, std::string& shownName) {
    shownName = typedName;
    sessionChanged(m_sessions.add(typedName, m_round.state().manyErrors, shownName));
}

void QlvsModel::switchSession(int slot) {
    sessionChanged(m_sessions.switchTo(slot, m_round.state().manyErrors));
}

void QlvsModel::deleteSession() {
    sessionChanged(m_sessions.deleteCurrent());
}

void QlvsModel::dropFiles(const std::vector<std::string>& paths) {
    // A user brought in by a dropped file would walk past the lock.
    if (!dropsAccepted()) {
        return;
    }
    // A picture becomes the background at once; the design window decides
    // whether it is kept.
    std::vector<std::string> others;
    for (const std::string& path : paths) {
        if (isPictureName(path) && m_pictureTaker) {
            m_pictureTaker(path);
        } else if (isPictureName(path)) {
            m_picture = path;
        } else {
            others.push_back(path);
        }
    }
    if (!others.empty()) {
        sessionChanged(m_sessions.addFromFiles(others, m_round.state().manyErrors));
    }
}

void QlvsModel::keyEntered(const std::string& typed) {
    m_panel.enterKey(typed);
}

// --- timers ----------------------------------------------------------------------------

int QlvsModel::tickSound() {
    return m_round.pendingSound().tick();
}

void QlvsModel::soundEnded(int number) {
    // The score of a new game counts once its opening sound is over.
    if (number == kSoundNewPhrase) {
        m_scoring.startCounting();
    }
}

void QlvsModel::tickCountdown() {
    switch (m_countdown.tick()) {
    case Countdown::Tick::Warning:
        m_round.pendingSound().request(kSoundWarning, m_shared.settings.sonidos);
        break;
    case Countdown::Tick::TimeUp:
        m_round.timeUp();
        break;
    case Countdown::Tick::Nothing:
        break;
    }
}

void QlvsModel::tickScore() {
    m_scoring.tick(m_round.strikeCountForScore());
}

void QlvsModel::openKeyboard() {
    if (!m_keyboardShown) {
        m_opening = true;
    }
}

void QlvsModel::tickOpen() {
    if (!m_opening) {
        return;
    }
    m_heightTwips += kOpenStepTwips;
    if (m_heightTwips >= kBaseHeightTwips + kKeyboardExtraTwips) {
        m_heightTwips = kBaseHeightTwips + kKeyboardExtraTwips;
        m_keyboardShown = true;
        m_opening = false;
        if (m_shared.settings.tecladoPermanente) {
            m_topSteps = kTopSteps;
        }
    }
}

int QlvsModel::tickTop() {
    if (m_topSteps == 0) {
        return 0;
    }
    --m_topSteps;
    return kTopStepTwips;
}

LampColours QlvsModel::lampColours() const {
    return quillora::lampColours(m_round.lamp(), m_shared.palette);
}

void QlvsModel::queEsEso() {
    m_lookUp.mWhat(lowerCase(toUtf8(m_round.board().answerText())),
                   m_shared.settings.usarEnciclopedia);
}

void QlvsModel::lookUpHistoryEntry() {
    m_lookUp.mWhat(m_history.lookUpText(), m_shared.settings.usarEnciclopedia);
}

void QlvsModel::eHelp() {
    m_lookUp.eHelp();
}

void QlvsModel::eAbout() {
    quillora::eAbout(m_dialogs);
}

} // namespace quillora
