// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/start/StartScreenModel.h"

#include "desktop/WebLookUp.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"
#include "storage/ProgressFile.h"
#include "storage/Sessions.h"

namespace quillora {

void loadAtStart(SharedState& shared) {
    // A save cut short by a crash or a kill leaves its temporary file behind.
    // No save of ours is under way while the game starts, so whatever of
    // them is left from a copy of the game no longer running goes now.
    removeStaleTemporaries(shared.dataFolder);
    Sessions::initialise(shared);
    shared.palette = Palette{};
    shared.settings.autoPhrase = false;
    const bool keepValues = shared.skipStartDefaults;
    if (keepValues) {
        shared.skipStartDefaults = false;
    } else {
        // Every user's options window opens on its first page again.
        for (SessionSlot& slot : shared.sessions) {
            slot.optionsPage = 0;
        }
        UserSession& session = shared.currentSession();
        session.corrections = "3";
        shared.survivalPoints = 1000;
        shared.normalPoints = 0;
        auto& names = shared.current().playerNames;
        for (std::size_t i = 0; i < names.size(); ++i) {
            names[i] = "Jugador " + std::to_string(i + 1);
        }
    }
    shared.correctionsLeft = leadingCount(shared.currentSession().corrections);
    if (keepValues) {
        return;
    }
    if (shared.progressToRead) {
        // The user comes back to what they had.
        shared.progressToRead = false;
        takeProgress(shared, readUserProgress(shared, shared.current()));
    } else {
        // "Reiniciar": what it has just cleared is cleared on disk too, so
        // the next run does not bring it back.
        writeProgress(shared);
    }
}

} // namespace quillora

namespace quillora {

StartScreenModel::StartScreenModel(SharedState& shared, bool fontAvailable)
    : m_fontMissing(!fontAvailable) {
    loadAtStart(shared);
}

void StartScreenModel::tick() {
    if (!m_running) {
        return;
    }
    if (m_ticks < kTicks) {
        m_lineLength += kLineStep;
        ++m_ticks;
    }
    if (m_ticks >= kTicks) {
        finishIntro();
    }
}

void StartScreenModel::finishIntro() {
    m_running = false;
    if (!m_fontMissing) {
        m_outcome = Outcome::ShowMenu;
        return;
    }
    m_pointerShown = true;
    m_noticeShown = true;
}

void StartScreenModel::download(WebLookUp& lookUp) {
    if (!lookUp.downloadFont()) {
        return;
    }
    m_pointerLeft = kPointerAtRestart;
    m_downloaded = true;
}

} // namespace quillora
