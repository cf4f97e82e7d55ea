// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/players/PlayersModel.h"

#include <algorithm>

namespace quillora {

PlayersModel::PlayersModel(const SharedState& shared)
    : m_multiplayer(shared.multiplayer), m_playerCount(std::clamp(shared.playerCount, 1, kRows)),
      m_texts(shared.current().playerNames) {
    if (!m_multiplayer) {
        m_texts[0] = shared.settings.userName;
    }
}

std::string PlayersModel::placeholder(int box) {
    return "JUGADOR " + std::to_string(box);
}

void PlayersModel::focusIn(int box) {
    if (text(box) == placeholder(box)) {
        setText(box, {});
    }
}

void PlayersModel::focusOut(int box) {
    if (text(box).empty()) {
        setText(box, placeholder(box));
    }
}

PlayersModel::EnterMove PlayersModel::enter(int box) const {
    if (!m_multiplayer) {
        return {true, 0};
    }
    return {false, box >= m_playerCount ? 1 : box + 1};
}

int PlayersModel::tickedCount() const {
    return static_cast<int>(std::count(m_checked.begin(), m_checked.end(), true));
}

bool PlayersModel::setTicked(int box, bool on) {
    bool& ticked = m_checked[index(box)];
    ticked = on && (ticked || tickedCount() < 2);
    return ticked;
}

void PlayersModel::tickChange() {
    if (!changeTimerRunning()) {
        return;
    }
    const auto first = std::find(m_checked.begin(), m_checked.end(), true);
    const auto second = std::find(first + 1, m_checked.end(), true);
    const auto low = static_cast<std::size_t>(first - m_checked.begin());
    const auto high = static_cast<std::size_t>(second - m_checked.begin());
    std::swap(m_texts[low], m_texts[high]);
    m_checked[low] = false;
    m_checked[high] = false;
}

void PlayersModel::keepNames(SharedState& shared) {
    for (int box = 1; box <= m_playerCount; ++box) {
        focusOut(box);
    }
    auto& names = shared.current().playerNames;
    if (m_multiplayer) {
        names[0] = m_texts[0];
    } else {
        shared.settings.userName = m_texts[0];
        shared.currentSession().displayName = m_texts[0];
    }
    std::copy(m_texts.begin() + 1, m_texts.end(), names.begin() + 1);
}

} // namespace quillora
