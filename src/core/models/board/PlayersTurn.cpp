// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/PlayersTurn.h"

#include "state/SharedState.h"
#include "storage/ConfigFile.h"

namespace quillora {

void PlayersTurn::refresh() {
    m_label = playerLabelFor(m_shared, m_label.caption);
}

void PlayersTurn::hover() {
    if (!freeTurn()) {
        refresh();
    }
}

bool PlayersTurn::movesEnabled() const {
    return turnMovesEnabled(m_shared);
}

bool PlayersTurn::freeTurn() const {
    return freeTurnOn(m_shared);
}

void PlayersTurn::moveForward() {
    moveTurnForward(m_shared);
    moved();
}

void PlayersTurn::moveBack() {
    moveTurnBack(m_shared);
    moved();
}

void PlayersTurn::toggleFreeTurn() {
    quillora::toggleFreeTurn(m_shared);
    moved();
}

void PlayersTurn::moved() {
    refresh();
    if (onMoved) {
        onMoved();
    }
}

void PlayersTurn::pass() {
    passTurn(m_shared);
    refresh();
}

void PlayersTurn::namesClosed() {
    refresh();
    saveSettings(m_shared, m_dialogs);
}

bool PlayersTurn::namesAtStart() const {
    return m_shared.multiplayer;
}

} // namespace quillora
