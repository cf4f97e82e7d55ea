// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/SidePanels.h"

#include "storage/ConfigFile.h"

namespace quillora {

void SidePanels::closeAll() {
    m_side.closeSidePanels();
    m_stats.close();
}

void SidePanels::toggleHistory() {
    if (m_side.showing(SidePanelModel::Content::History)) {
        closeAll();
        return;
    }
    m_stats.close();
    m_side.show(SidePanelModel::Content::History);
}

void SidePanels::openThemes() {
    m_themes.fill();
    m_side.show(SidePanelModel::Content::Themes);
    saveSettings(m_shared, m_dialogs);
}

} // namespace quillora
