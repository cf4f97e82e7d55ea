// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/PhraseAccessible.h"

#include "models/board/BoardModel.h"
#include "models/board/BoardSpeech.h"
#include "windows/QtColour.h"
#include "windows/board/PaintedPartAccessible.h"
#include "windows/board/PhraseView.h"

namespace quillora {

namespace {

// One cell of the phrase, 1..42.
class CellAccessible final : public PaintedPartAccessible<PhraseView>,
                             public QAccessibleTableCellInterface {
public:
    using PaintedPartAccessible::PaintedPartAccessible;

    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override {
        QAccessible::State s;
        s.readOnly = true;
        s.invisible = !m_view || !m_view->isVisible();
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return (m_part - 1) % PhraseBoard::kColumns; }
    int rowIndex() const override { return (m_part - 1) / PhraseBoard::kColumns; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    QString name() const override { return qs(spokenCellName(board().cell(m_part))); }
    QString description() const override { return qs(spokenCellDescription(board(), m_part)); }
    QRect partRect() const override { return m_view->cellRect(m_part); }
    const PhraseBoard& board() const { return m_view->round().board(); }
};

} // namespace

PhraseAccessible::PhraseAccessible(PhraseView* view)
    : QAccessibleWidget(view, QAccessible::Table) {}

PhraseAccessible::~PhraseAccessible() = default;

PhraseView* PhraseAccessible::view() const {
    return static_cast<PhraseView*>(widget());
}

QAccessibleInterface* PhraseAccessible::child(int index) const {
    return m_cells.get(index, [this, index] { return new CellAccessible(view(), index + 1); });
}

int PhraseAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return m_cells.indexOf(child);
}

QAccessibleInterface* PhraseAccessible::childAt(int x, int y) const {
    const QPoint at = view()->mapFromGlobal(QPoint(x, y));
    for (int cell = 1; cell <= PhraseBoard::kCells; ++cell) {
        if (view()->cellRect(cell).contains(at)) {
            return child(cell - 1);
        }
    }
    return nullptr;
}

QAccessibleInterface* PhraseAccessible::cellAt(int row, int column) const {
    if (row < 0 || column < 0 || column >= PhraseBoard::kColumns || row >= rowCount()) {
        return nullptr;
    }
    return child(row * PhraseBoard::kColumns + column);
}

void* PhraseAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) {
        return static_cast<QAccessibleTableInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

} // namespace quillora
