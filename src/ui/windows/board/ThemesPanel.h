// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/board/SideListPanel.h"

namespace quillora {

class SidePanels;

// "Temas seleccionados:": the themes the game draws from now, by name.
class ThemesPanel final : public SideListPanel {
public:
    ThemesPanel(SidePanels& panels, std::function<void()> changed,
                std::function<bool(QKeyEvent*)> boardKeys, QWidget* board);

    void sync();

private:
    SidePanels& m_panels;
};

} // namespace quillora
