// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

#include <functional>

class QLabel;
class QMenu;

namespace quillora {

class Round;
class Scoring;
class SidePanels;
class TipModel;

// The box that names the theme of the game.
class ThemeBox final : public RoundedLabel {
public:
    ThemeBox(const Round& round, const Scoring& scoring, SidePanels& panels, TipModel& tip,
             std::function<void()> changed, QWidget* board);

    void sync();

    QLabel* themeLabel() const { return m_themeLabel; }
    // The theme label's own menu.
    QMenu* buildMenu();

private:
    const Round& m_round;
    const Scoring& m_scoring;
    SidePanels& m_panels;
    TipModel& m_tip;
    std::function<void()> m_changed;
    QLabel* m_themeLabel = nullptr;
    int m_fittedWidth = 0;
};

} // namespace quillora
