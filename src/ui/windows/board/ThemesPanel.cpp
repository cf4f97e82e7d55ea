// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/ThemesPanel.h"

#include "models/board/BoardModel.h"

#include <QListWidget>

namespace quillora {

ThemesPanel::ThemesPanel(BoardModel& model, std::function<void()> changed,
                         std::function<bool(QKeyEvent*)> boardKeys, QWidget* board)
    : SideListPanel(
          QStringLiteral("themesFrame"), QStringLiteral("Temas seleccionados:"),
          [&model, changed = std::move(changed)] {
              model.closeSidePanels();
              changed();
          },
          std::move(boardKeys), board),
      m_model(model) {
    list()->setSelectionMode(QAbstractItemView::SingleSelection);
}

void ThemesPanel::sync() {
    present(m_model.side().showing(SidePanelModel::Content::Themes), m_model.themesPanel().names());
}

} // namespace quillora
