// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

class QLabel;

namespace quillora {

class QlvsModel;

// The box that names the theme of the game (shpTheme, with lblTheme in it).
class ThemeBox final : public RoundedLabel {
public:
    ThemeBox(const QlvsModel& model, QWidget* board);

    void sync();

    QLabel* themeLabel() const { return m_lblTheme; }

private:
    const QlvsModel& m_model;
    QLabel* m_lblCaption = nullptr;
    QLabel* m_lblTheme = nullptr;
    int m_fittedWidth = 0;
};

} // namespace quillora
