// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/ThemesPanel.h"

#include "models/board/SidePanels.h"

#include <QListWidget>

namespace quillora {

ThemesPanel::ThemesPanel(SidePanels& panels, std::function<void()> changed,
                         std::function<bool(QKeyEvent*)> boardKeys, QWidget* board)
    : SideListPanel(
          QStringLiteral("themesFrame"), QStringLiteral("Temas seleccionados:"),
          [&panels, changed = std::move(changed)] {
              panels.closeAll();
              changed();
          },
          std::move(boardKeys), board),
      m_panels(panels) {
    list()->setSelectionMode(QAbstractItemView::SingleSelection);
}

void ThemesPanel::sync() {
    present(m_panels.side().showing(SidePanelModel::Content::Themes), m_panels.themes().names());
}

} // namespace quillora
