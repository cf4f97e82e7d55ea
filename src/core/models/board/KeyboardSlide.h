// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"
#include "state/Settings.h"

namespace quillora {

// The on-screen keyboard sliding out under the board when a phrase is laid,
// and the window's height and top that follow it, in twips. With the options
// keeping the keyboard open the board opens a little lower, and once the
// keyboard is out it climbs back up a step a tick.
class KeyboardSlide {
public:
    static constexpr int kKeyboardExtraTwips = 1080;
    static constexpr int kOpenStepTwips = 60;
    static constexpr int kOpenTickMs = 10;
    static constexpr int kKeptOpenDropTwips = 120;
    static constexpr int kClimbStepTwips = 60;
    static constexpr int kClimbSteps = 10;
    static constexpr int kTopCheckTickMs = 100;
    static constexpr int kMinTopTwips = 60;

    explicit KeyboardSlide(const Settings& settings) : m_settings(settings) {}

    // A keyboard kept open is there at once when the board opens: it does
    // not slide, and so nothing climbs.
    void showAtOnce();
    void open();
    void tickOpen();
    bool opening() const { return m_opening; }
    bool shown() const { return m_shown; }
    int heightTwips() const { return m_heightTwips; }
    int openingDropTwips() const { return m_settings.keyboardKeptOpen ? kKeptOpenDropTwips : 0; }
    bool climbing() const { return m_climbSteps > 0; }
    // One step up, in twips.
    int tickClimb();
    // The window's top, in twips, where it must be: never above the screen's edge.
    static int keepTopOnScreen(int topTwips) {
        return topTwips < kMinTopTwips ? kMinTopTwips : topTwips;
    }

private:
    const Settings& m_settings;
    bool m_opening = false;
    bool m_shown = false;
    int m_heightTwips = kBoardBaseHeightTwips;
    int m_climbSteps = 0;
};

} // namespace quillora
