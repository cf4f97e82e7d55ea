// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/ThemesPanelModel.h"

#include "round/ThemeSelection.h"
#include "state/SharedState.h"

namespace quillora {

void ThemesPanelModel::fill() {
    m_names.clear();
    for (int theme : selectedThemeNumbers(m_shared.current())) {
        m_names.push_back(themeNameOf(m_shared, theme));
    }
}

} // namespace quillora
