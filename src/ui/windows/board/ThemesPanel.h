// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/board/SideListPanel.h"

namespace quillora {

class BoardModel;

// "Temas seleccionados:": the themes the game draws from now, by name.
class ThemesPanel final : public SideListPanel {
public:
    ThemesPanel(BoardModel& model, std::function<void()> changed,
                std::function<bool(QKeyEvent*)> boardKeys, QWidget* board);

    void sync();

private:
    const BoardModel& m_model;
};

} // namespace quillora
