// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmNames/NamesModel.h"

#include <algorithm>

namespace quillora {

NamesModel::NamesModel(const SharedState& shared)
    : m_multiplayer(shared.multiplayer), m_playerCount(std::clamp(shared.playerCount, 1, kRows)),
      m_texts(shared.current().playerNames) {
    if (!m_multiplayer) {
        m_texts[0] = shared.settings.nombre;
    }
}

std::string NamesModel::placeholder(int box) {
    return "JUGADOR " + std::to_string(box);
}

void NamesModel::focusIn(int box) {
    if (text(box) == placeholder(box)) {
        setText(box, {});
    }
}

void NamesModel::focusOut(int box) {
    if (text(box).empty()) {
        setText(box, placeholder(box));
    }
}

NamesModel::EnterMove NamesModel::enter(int box) const {
    if (!m_multiplayer) {
        return {true, 0};
    }
    return {false, box >= m_playerCount ? 1 : box + 1};
}

int NamesModel::tickedCount() const {
    return static_cast<int>(std::count(m_checked.begin(), m_checked.end(), true));
}

bool NamesModel::tick(int box) {
    bool& on = m_checked[index(box)];
    on = !on;
    if (on && tickedCount() > 2) {
        on = false;
    }
    return on;
}

void NamesModel::tickChange() {
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

void NamesModel::eOk(SharedState& shared) {
    for (int box = 1; box <= m_playerCount; ++box) {
        focusOut(box);
    }
    auto& names = shared.current().playerNames;
    if (m_multiplayer) {
        names[0] = m_texts[0];
    } else {
        shared.settings.nombre = m_texts[0];
        shared.currentSession().displayName = m_texts[0];
    }
    std::copy(m_texts.begin() + 1, m_texts.end(), names.begin() + 1);
}

} // namespace quillora
