// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardCommands.h"

#include "models/board/TipModel.h"
#include "ports/Dialogs.h"
#include "round/Round.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

namespace quillora {

void BoardCommands::clearBoard() {
    m_round.clearBoard();
}

void BoardCommands::toggleAutoPhrase() {
    m_round.phraseChoice().toggleAutoPhrase();
}

void BoardCommands::toggleSounds() {
    m_shared.settings.sounds = !m_shared.settings.sounds;
    saveSettings(m_shared, m_dialogs);
}

const char* BoardCommands::soundButtonTooltip() const {
    return m_shared.settings.sounds ? " Ocultar Sonidos " : " Mostrar Sonidos ";
}

void BoardCommands::toggleAnimation() {
    m_shared.settings.animated = !m_shared.settings.animated;
    if (!m_shared.settings.animated) {
        m_tip.stop();
    }
    saveSettings(m_shared, m_dialogs);
}

void BoardCommands::hidePlayButton(bool hidden) {
    m_shared.settings.playButtonHidden = hidden;
    saveSettings(m_shared, m_dialogs);
}

void BoardCommands::askRestart() {
    if (m_dialogs.okCancel("Está apunto de reiniciar el juego, se borrará todo.")) {
        restartNow();
    }
}

void BoardCommands::restartNow() {
    m_restart = true;
    if (m_shared.sessionLoaded) {
        m_shared.current().selectedThemes = {};
    }
}

void BoardCommands::backToMenu() {
    if (m_round.backToMenu()) {
        m_toMenu = true;
    }
}

} // namespace quillora
