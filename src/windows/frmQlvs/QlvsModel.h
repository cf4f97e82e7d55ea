// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/Round.h"
#include "storage/SharedState.h"
#include "windows/appearance/BoardLook.h"

#include <string>

namespace quillora {

// The board window's own state beside the game: the keyboard's faces under
// the mouse, the strike-correction label, the keyboard's opening and which of
// the window's timers run. The widget draws this and the round it holds.
class QlvsModel final : private RoundEvents {
public:
    static constexpr int kWidthTwips = 11745;
    static constexpr int kBaseHeightTwips = 5340;
    static constexpr int kKeyboardExtraTwips = 1080;
    static constexpr int kOpenStepTwips = 60;
    static constexpr int kOpenTickMs = 10;
    static constexpr int kStatusTickMs = 500;
    static constexpr int kLampTickMs = 400;

    QlvsModel(SharedState& shared, Dialogs& dialogs, Random& random, RoundEvents* events = nullptr);

    Round& round() { return m_round; }
    const Round& round() const { return m_round; }
    const SharedState& shared() const { return m_shared; }

    // --- keys and the mouse ----------------------------------------------------------
    // A key typed on the window: Delete, Enter and characters.
    enum class WindowKey { Character, Delete, Enter, Escape, Other };
    void keyTyped(WindowKey key, char32_t character = 0);
    void hoverKey(int key);
    void leaveKeys();
    void pressKey(int key);
    // The release of the mouse anywhere; a click completes on the key it began.
    void releaseMouse(int keyUnderMouse);
    KeyLook keyFace(int key) const;
    int hoveredKey() const { return m_hoveredKey; }
    int pressedKey() const { return m_pressedKey; }

    // The label over the eighth strike mark offers the correction on hover.
    void hoverQuit();
    void ColorFall();
    const std::string& quitCaption() const { return m_quitCaption; }
    const std::string& quitTooltip() const { return m_quitTooltip; }

    // --- the keyboard's opening (tmrOpen) ----------------------------------------------
    void openKeyboard();
    void tickOpen();
    bool openTimerRunning() const { return m_opening; }
    bool keyboardShown() const { return m_keyboardShown; }
    int heightTwips() const { return m_heightTwips; }

    // --- colours ----------------------------------------------------------------------
    LampColours lampColours() const;
    Rgb gameColour() const { return m_shared.palette.gameColour; }
    Rgb shade() const { return eColor(m_shared.palette.gameColour); }
    CellLook cellLook(int cell) const { return ApplyLetterStyle(m_shared.settings, cell); }
    Rgb missColour() const { return quillora::missColour(m_shared.settings, m_shared.palette); }
    Rgb background() const { return windowBackground(m_shared.settings); }

private:
    // The round's hand-overs pass through here: the window opens its keyboard
    // when a phrase is laid, then whoever else listens hears of it.
    void nextTurn() override { m_outer.nextTurn(); }
    void phraseLaid() override;
    void roundWon() override { m_outer.roundWon(); }
    void roundLost() override { m_outer.roundLost(); }
    void countdownStopped() override { m_outer.countdownStopped(); }
    void correctionAsked(bool asking) override { m_outer.correctionAsked(asking); }

    SharedState& m_shared;
    RoundEvents m_noEvents;
    RoundEvents& m_outer;
    Round m_round;
    int m_hoveredKey = -1;
    int m_pressedKey = -1;
    std::string m_quitCaption;
    std::string m_quitTooltip = " Octavo Strike. ";
    bool m_opening = false;
    bool m_keyboardShown = false;
    int m_heightTwips = kBaseHeightTwips;
};

} // namespace quillora
