// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardLookUps.h"

#include "desktop/About.h"
#include "desktop/WebLookUp.h"
#include "models/board/HistoryPanelModel.h"
#include "round/Round.h"
#include "state/SharedState.h"
#include "words/Text.h"

namespace quillora {

void BoardLookUps::lookUpAnswer() {
    m_lookUp.openLookUp(lowerCase(toUtf8(m_round.board().answerText())),
                        m_shared.settings.useEncyclopedia);
}

void BoardLookUps::lookUpHistoryEntry() {
    m_lookUp.openLookUp(m_history.lookUpText(), m_shared.settings.useEncyclopedia);
}

void BoardLookUps::openHelp() {
    m_lookUp.openHelp();
}

void BoardLookUps::showAbout() {
    quillora::showAbout(m_dialogs);
}

} // namespace quillora
