// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <string>

namespace quillora {

class Dialogs;
struct SharedState;

// The main menu: four tiles to choose how to play or open the options, a
// legend naming the tile under the mouse, a one-digit number box for games
// with several friends and, for a locked session, a lock over the tiles that
// cannot be used. The widget draws this and forwards the mouse and keys.
class MainMenuModel {
public:
    // The window's content, in twips; the legend opens from its centre.
    static constexpr int kWidthTwips = 4680;
    static constexpr int kHeightTwips = 2520;

    // One step of the legend's slide.
    static constexpr int kLegendTickMs = 20;
    static constexpr int kLegendStartLeft = 2280;
    static constexpr int kLegendStartWidth = 120;
    static constexpr int kLegendStepLeft = 240;
    static constexpr int kLegendStepWidth = 480;

    // The menu swells to the options window's size before handing over.
    static constexpr int kInTickMs = 10;
    static constexpr int kInFinalWidth = 6945;
    static constexpr int kInFinalHeight = 4155;
    static constexpr int kInGrowWidth = 120;
    static constexpr int kInGrowHeight = 130;

    static constexpr int kPlayersFromHover = 3;

    // What lies under the mouse.
    enum class Spot { Background, Solo, Friend, Several, Options, Lock, Legend };
    // What the window must do next.
    enum class Outcome { Stay, OpenBoard, OpenOptions, About, Quit };
    // A click on the legend: the about box.
    void showAbout();
    enum class Key { Character, Escape, Enter, Other };

    MainMenuModel(SharedState& shared, Dialogs& dialogs);

    // Every showing: the game colour from the session's file, the tiles'
    // colours, the lock, and the welcome legend.
    void load();
    // The offer to copy an older installation's configuration, after the
    // word on a progress file that could not be read. The window makes it
    // once it is on screen, so the question stands over the menu.
    void offerOldConfig();

    // --- the mouse ---------------------------------------------------------------
    void hover(Spot spot);
    void press(Spot spot);
    // A click completes only where the press began.
    Outcome release(Spot underMouse);
    Outcome choose(Spot spot);

    // --- keys ----------------------------------------------------------------------
    Outcome keyTyped(Key key, char32_t character = 0);

    // --- timers --------------------------------------------------------------------
    void tickLegend();
    bool legendTimerRunning() const { return m_legendOpening; }
    Outcome tickIn();
    bool inTimerRunning() const { return m_inRunning; }

    // --- what the window shows -------------------------------------------------------
    bool locked() const { return m_locked; }
    Rgb tileColour(Spot spot) const;
    Rgb gameColour() const;
    Rgb shade() const { return shadeOf(gameColour()); }
    Spot hovered() const { return m_hovered; }
    const std::string& legend() const { return m_legend; }
    // What the legend says over a spot; a screen reader hears each tile by it.
    std::string legendOf(Spot spot) const;
    int legendLeft() const { return m_legendLeft; }
    int legendWidth() const { return m_legendWidth; }
    const std::string& numberText() const { return m_numberText; }
    bool numberSelected() const { return m_numberSelected; }

    // The window's place and size in twips. The widget reports where the
    // window was moved; the opening towards the options changes all four.
    void placeWindow(int left, int top);
    // The menu that comes back from the options takes their window's width
    // and a height of its own, shorter than its panel.
    static constexpr int kBackFromOptionsHeightTwips = 2115;
    void takeOptionsWidth(int width);
    int windowLeft() const { return m_left; }
    int windowTop() const { return m_top; }
    int windowWidth() const { return m_width; }
    int windowHeight() const { return m_height; }

private:
    void readGameColour();
    Outcome Ok(bool multiplayer, int players);
    Outcome playSeveral();
    Spot reachable(Spot spot) const;
    void showLegend(const std::string& text);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    bool m_locked = false;
    Spot m_hovered = Spot::Background;
    Spot m_pressed = Spot::Background;
    // The tile lit green by the mouse.
    Spot m_lit = Spot::Background;
    std::string m_legend;
    int m_legendLeft = 0;
    int m_legendWidth = kWidthTwips;
    bool m_legendOpening = false;
    std::string m_numberText = "3";
    bool m_numberSelected = false;
    bool m_inRunning = false;
    int m_left = 0;
    int m_top = 0;
    int m_width = kWidthTwips;
    int m_height = kHeightTwips;
};

} // namespace quillora
