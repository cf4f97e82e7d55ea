// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardSessions.h"

#include "look/Picture.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardCommands.h"
#include "ports/Dialogs.h"
#include "round/Round.h"
#include "state/SharedState.h"

namespace quillora {

void BoardSessions::togglePanel() {
    if (m_panel.shown() && m_shared.locked) {
        return;
    }
    const bool playing = m_round.status().rfind("JUGANDO", 0) == 0;
    m_panel.toggleSessionPanel(static_cast<int>(m_sessions.entries().size()), playing);
}

void BoardSessions::toggleList() {
    if (!m_panel.listShown() && m_round.state().manyErrors) {
        m_dialogs.exclamation("No se puede cambiar de sesión, termine la partida.");
        return;
    }
    m_panel.toggleList(static_cast<int>(m_sessions.entries().size()));
}

std::string BoardSessions::displayName() const {
    return m_shared.currentSession().displayName;
}

bool BoardSessions::deleteShown() const {
    return m_shared.currentSlot != 0;
}

void BoardSessions::changed(bool changed) {
    if (changed) {
        m_commands.restartNow();
    }
}

void BoardSessions::add(const std::string& typedName, std::string& shownName) {
    shownName = typedName;
    changed(m_sessions.add(typedName, m_round.state().manyErrors, shownName));
}

void BoardSessions::switchTo(int slot) {
    changed(m_sessions.switchTo(slot, m_round.state().manyErrors));
}

void BoardSessions::deleteCurrent() {
    changed(m_sessions.deleteCurrent());
}

bool BoardSessions::dropsAccepted() const {
    return !m_shared.locked;
}

void BoardSessions::dropFiles(const std::vector<std::string>& paths) {
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
        changed(m_sessions.addFromFiles(others, m_round.state().manyErrors));
    }
}

} // namespace quillora
