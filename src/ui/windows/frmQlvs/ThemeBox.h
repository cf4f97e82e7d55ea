// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

#include <functional>

class QLabel;
class QMenu;

namespace quillora {

class QlvsModel;

// The box that names the theme of the game (shpTheme, with lblTheme in it).
class ThemeBox final : public RoundedLabel {
public:
    ThemeBox(QlvsModel& model, std::function<void()> changed, QWidget* board);

    void sync();

    QLabel* themeLabel() const { return m_lblTheme; }
    // The theme label's own menu.
    QMenu* buildMenu();

private:
    QlvsModel& m_model;
    std::function<void()> m_changed;
    QLabel* m_lblCaption = nullptr;
    QLabel* m_lblTheme = nullptr;
    int m_fittedWidth = 0;
};

} // namespace quillora
