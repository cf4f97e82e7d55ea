// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "players/Players.h"

#include <functional>

namespace quillora {

class Dialogs;
struct SharedState;

// Whose turn it is in a game with friends, as the player label beside the
// score shows it, and the turn menu's moves.
class PlayersTurn {
public:
    PlayersTurn(SharedState& shared, Dialogs& dialogs) : m_shared(shared), m_dialogs(dialogs) {}

    const PlayerLabel& label() const { return m_label; }
    void refresh();
    // The mouse passes over the label.
    void hover();
    bool movesEnabled() const;
    bool freeTurn() const;
    void moveForward();
    void moveBack();
    void toggleFreeTurn();
    // A guess ends the turn.
    void pass();
    // The players window closed with the names stored.
    void namesClosed();
    // A moment after the board opens, a game with friends starts with their names.
    bool namesAtStart() const;
    // Told when the turn menu moves the turn or frees it.
    std::function<void()> onMoved;

private:
    void moved();

    SharedState& m_shared;
    Dialogs& m_dialogs;
    PlayerLabel m_label;
};

} // namespace quillora
