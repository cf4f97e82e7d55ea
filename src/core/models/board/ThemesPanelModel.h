// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillora {

struct SharedState;

// "Temas seleccionados:": the names of the themes the player chose in the
// themes list, as they stand when the panel opens.
class ThemesPanelModel {
public:
    explicit ThemesPanelModel(const SharedState& shared) : m_shared(shared) {}

    // openThemesPanel: the list is filled afresh, in theme order.
    void fill();
    const std::vector<std::string>& names() const { return m_names; }

private:
    const SharedState& m_shared;
    std::vector<std::string> m_names;
};

} // namespace quillora
