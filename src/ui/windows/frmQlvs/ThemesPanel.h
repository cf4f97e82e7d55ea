// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/frmQlvs/SideListPanel.h"

namespace quillora {

class QlvsModel;

// "Temas seleccionados:": the themes the game draws from now, by name.
class ThemesPanel final : public SideListPanel {
public:
    ThemesPanel(QlvsModel& model, std::function<void()> changed,
                std::function<bool(QKeyEvent*)> boardKeys, QWidget* board);

    void sync();

private:
    const QlvsModel& m_model;
};

} // namespace quillora
