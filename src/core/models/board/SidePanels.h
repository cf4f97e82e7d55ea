// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/board/HistoryPanelModel.h"
#include "models/board/SidePanelModel.h"
#include "models/board/StatsPanelModel.h"
#include "models/board/ThemesPanelModel.h"

namespace quillora {

class Dialogs;
struct SharedState;

// The panels that come up beside the figure: the history and the selected
// themes, which take turns in the side panel, and the statistics, which
// unroll over the board's side. Esc and the clicks that put them away put
// all of them away.
class SidePanels {
public:
    SidePanels(SharedState& shared, Dialogs& dialogs)
        : m_shared(shared), m_dialogs(dialogs), m_stats(shared), m_history(shared, dialogs),
          m_themes(shared) {}

    SidePanelModel& side() { return m_side; }
    StatsPanelModel& stats() { return m_stats; }
    HistoryPanelModel& history() { return m_history; }
    const ThemesPanelModel& themes() const { return m_themes; }

    void closeAll();
    // "Estadísticas".
    void openStats() { m_stats.open(); }
    // "Historial" and Ctrl+H: the history comes up in place of the
    // statistics, or goes away with the other side panels.
    void toggleHistory();
    // "Temas seleccionados", from the theme label's menu.
    void openThemes();

private:
    SharedState& m_shared;
    Dialogs& m_dialogs;
    SidePanelModel m_side;
    StatsPanelModel m_stats;
    HistoryPanelModel m_history;
    ThemesPanelModel m_themes;
};

} // namespace quillora
