// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/PhraseBoard.h"
#include "windows/board/PaintedPartAccessible.h"

#include <QAccessibleWidget>

namespace quillora {

class PhraseView;

// The phrase as a screen reader finds it: a table of three rows of fourteen
// cells, each reading what the board paints in it.
class PhraseAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit PhraseAccessible(PhraseView* view);
    ~PhraseAccessible() override;

    QAccessible::Role role() const override { return QAccessible::Table; }
    int childCount() const override { return PhraseBoard::kCells; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return PhraseBoard::kColumns; }
    int rowCount() const override { return PhraseBoard::kCells / PhraseBoard::kColumns; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    PhraseView* view() const;

    mutable PartInterfaces m_cells{PhraseBoard::kCells};
};

} // namespace quillora
