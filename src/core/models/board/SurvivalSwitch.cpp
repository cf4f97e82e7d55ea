// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/SurvivalSwitch.h"

#include "models/board/BoardCommands.h"
#include "ports/Dialogs.h"
#include "scoring/Points.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

namespace quillora {

bool SurvivalSwitch::entryShown() const {
    return m_scoring.pointsCount();
}

void SurvivalSwitch::toggle() {
    switchTo(!m_shared.settings.survival);
}

void SurvivalSwitch::switchTo(bool on) {
    m_shared.survivalAnnounce = true;
    m_shared.settings.survival = on;
    saveSettings(m_shared, m_dialogs);
    m_reopen = true;
}

void SurvivalSwitch::askLeave() {
    if (!m_scoring.pointsCount() || !m_shared.settings.survival) {
        return;
    }
    if (m_dialogs.okCancel("Está apunto de salirse del modo supervivencia.")) {
        leave();
    }
}

void SurvivalSwitch::tickAnnounce() {
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

bool SurvivalSwitch::againShown() const {
    return m_scoring.noPoints();
}

void SurvivalSwitch::againRestart() {
    m_commands.restartNow();
}

} // namespace quillora
