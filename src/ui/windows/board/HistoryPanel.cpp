// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/HistoryPanel.h"

#include "models/board/BoardLookUps.h"
#include "models/board/SidePanels.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>

namespace quillora {

namespace {
// In the history Enter and Alt+Backspace stop at the list: a player walking
// the entries must not start a game or leave the board by mistake.
bool listOwns(const QKeyEvent& key) {
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool back = key.key() == Qt::Key_Backspace && key.modifiers() & Qt::AltModifier;
    return enter || back;
}
} // namespace

HistoryPanel::HistoryPanel(SidePanels& panels, BoardLookUps& lookUps, std::function<void()> changed,
                           std::function<bool(QKeyEvent*)> boardKeys, QWidget* board)
    : SideListPanel(
          QStringLiteral("historyFrame"), QStringLiteral("Historial de frases y palabras:"),
          [&panels, changed] {
              panels.closeAll();
              changed();
          },
          [boardKeys](QKeyEvent* key) { return listOwns(*key) || boardKeys(key); }, board),
      m_panels(panels), m_lookUps(lookUps), m_changed(std::move(changed)) {
    list()->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(list(), &QListWidget::itemDoubleClicked, this, [this] {
        m_panels.history().askToClear();
        m_changed();
    });
    list()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list(), &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (QMenu* menu = buildSearchMenu()) {
            menu->popup(list()->viewport()->mapToGlobal(at));
        }
    });
}

void HistoryPanel::sync() {
    present(m_panels.side().showing(SidePanelModel::Content::History),
            m_panels.history().entries());
}

QMenu* HistoryPanel::buildSearchMenu() {
    const QList<QListWidgetItem*> selected = list()->selectedItems();
    if (selected.isEmpty() || !m_panels.history().chooseForLookUp(list()->row(selected.front()))) {
        return nullptr;
    }
    auto* menu = new QMenu(QStringLiteral("Buscar"), this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("¿Qué es eso?")), &QAction::triggered, this,
            [this] { m_lookUps.lookUpHistoryEntry(); });
    return menu;
}

} // namespace quillora
