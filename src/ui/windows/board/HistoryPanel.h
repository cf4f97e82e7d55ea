// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/board/SideListPanel.h"

class QMenu;

namespace quillora {

class BoardLookUps;
class SidePanels;

// "Historial de frases y palabras:": the phrases of this session, newest
// last. A double click offers to empty it; the right button on an entry
// offers to look it up.
class HistoryPanel final : public SideListPanel {
public:
    HistoryPanel(SidePanels& panels, BoardLookUps& lookUps, std::function<void()> changed,
                 std::function<bool(QKeyEvent*)> boardKeys, QWidget* board);

    void sync();
    // The "Buscar" menu for the selected entry, or nothing without one.
    QMenu* buildSearchMenu();

private:
    SidePanels& m_panels;
    BoardLookUps& m_lookUps;
    std::function<void()> m_changed;
};

} // namespace quillora
