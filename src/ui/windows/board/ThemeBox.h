// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

#include <functional>

class QLabel;
class QMenu;

namespace quillora {

class BoardModel;

// The box that names the theme of the game.
class ThemeBox final : public RoundedLabel {
public:
    ThemeBox(BoardModel& model, std::function<void()> changed, QWidget* board);

    void sync();

    QLabel* themeLabel() const { return m_themeLabel; }
    // The theme label's own menu.
    QMenu* buildMenu();

private:
    BoardModel& m_model;
    std::function<void()> m_changed;
    QLabel* m_captionLabel = nullptr;
    QLabel* m_themeLabel = nullptr;
    int m_fittedWidth = 0;
};

} // namespace quillora
