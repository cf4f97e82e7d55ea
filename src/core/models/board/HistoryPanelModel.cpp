// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/HistoryPanelModel.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "words/Text.h"

#include <string_view>

namespace quillora {

namespace {
constexpr std::string_view kBreak = "\r\n";
} // namespace

HistoryPanelModel::HistoryPanelModel(SharedState& shared, Dialogs& dialogs)
    : m_shared(shared), m_dialogs(dialogs) {}

void HistoryPanelModel::load() {
    m_entries.clear();
    const std::string& text = m_shared.history;
    if (text.empty()) {
        return;
    }
    std::size_t start = 0;
    for (std::size_t end = text.find(kBreak); end != std::string::npos;
         end = text.find(kBreak, start)) {
        m_entries.push_back(text.substr(start, end - start));
        start = end + kBreak.size();
    }
    m_entries.push_back(text.substr(start));
}

void HistoryPanelModel::add(const std::string& answerText) {
    m_entries.push_back(answerText);
    joinHistory();
}

void HistoryPanelModel::joinHistory() {
    std::string text;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (i > 0) {
            text += kBreak;
        }
        text += m_entries[i];
    }
    m_shared.history = std::move(text);
}

void HistoryPanelModel::askToClear() {
    if (m_dialogs.yesNo("¿Quiere borrar la lista de forma completa?")) {
        m_entries.clear();
        m_shared.history.clear();
    }
}

bool HistoryPanelModel::chooseForLookUp(int selectedRow) {
    if (selectedRow < 0 || selectedRow >= static_cast<int>(m_entries.size())) {
        return false;
    }
    m_lookUpText = lowerCase(m_entries[static_cast<std::size_t>(selectedRow)]);
    return true;
}

} // namespace quillora
