// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/SharedState.h"

#include <array>
#include <string>

namespace quillora {

// "Jugadores:": one row per player, a name box and a check box. Ticking two
// check boxes swaps those two players in the turn order. The window has no
// OK button; closing it keeps the names (keepNames). Boxes are numbered 1..9.
class PlayersModel {
public:
    static constexpr int kRows = kMaxPlayers;
    static constexpr int kRowHeightTwips = 600;
    // Long enough for the second tick to be seen before the names swap.
    static constexpr int kChangeTickMs = 200;

    // Loads the names of the current session slot; alone, box 1 holds the
    // user's own name.
    explicit PlayersModel(const SharedState& shared);

    static std::string placeholder(int box);

    const std::string& text(int box) const { return m_texts[index(box)]; }
    void setText(int box, std::string text) { m_texts[index(box)] = std::move(text); }
    // The placeholder gets out of the way of typing and comes back when the
    // box is left empty.
    void focusIn(int box);
    void focusOut(int box);

    int visibleRows() const { return m_multiplayer ? m_playerCount : 1; }
    bool rowVisible(int box) const { return box >= 1 && box <= visibleRows(); }
    // Rows of the players of this game wear the game's colours.
    bool rowColoured(int box) const { return box >= 1 && box <= m_playerCount; }
    // What the window grows by over its one-row height.
    int extraHeightTwips() const { return (visibleRows() - 1) * kRowHeightTwips; }
    int firstFocusBox() const { return 1; }

    // Enter in a box: with friends the focus goes round the players' boxes;
    // alone there is nothing else to fill in, so the window closes.
    struct EnterMove {
        bool close = false;
        int focusBox = 0;
    };
    EnterMove enter(int box) const;

    // Check box `box` turned on or off, by the mouse, the keys or a screen
    // reader alike; answers whether it is ticked afterwards (a third tick is
    // refused). Two ticks start the swap's timer.
    bool setTicked(int box, bool on);
    bool checked(int box) const { return m_checked[index(box)]; }
    bool changeTimerRunning() const { return tickedCount() == 2; }
    // The swap's tick: swaps the names of the two ticked boxes and clears both.
    void tickChange();

    // Closing the window: keeps the names in the shared state. The caller
    // then refreshes the player label and saves the configuration.
    void keepNames(SharedState& shared);

private:
    static std::size_t index(int box) { return static_cast<std::size_t>(box - 1); }
    int tickedCount() const;

    bool m_multiplayer;
    int m_playerCount;
    std::array<std::string, kRows> m_texts{};
    std::array<bool, kRows> m_checked{};
};

} // namespace quillora
