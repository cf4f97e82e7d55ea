// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/PhraseAccessible.h"

#include "models/frmQlvs/BoardSpeech.h"
#include "models/frmQlvs/QlvsModel.h"
#include "windows/QtColour.h"
#include "windows/frmQlvs/PhraseView.h"

#include <QPointer>
#include <QWidget>

namespace quillora {

namespace {

// One cell of the phrase, 1..42. It holds no text of its own: each question
// is answered from the board as it stands.
class CellAccessible final : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    CellAccessible(PhraseView* view, int cell) : m_view(view), m_cell(cell) {}

    bool isValid() const override { return !m_view.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return table() ? table()->window() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text t) const override {
        if (!m_view) {
            return {};
        }
        const PhraseBoard& board = m_view->model().round().board();
        switch (t) {
        case QAccessible::Name:
            return qs(spokenCellName(board.cell(m_cell)));
        case QAccessible::Description:
            return qs(spokenCellDescription(board, m_cell));
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!m_view) {
            return {};
        }
        const QRect local = m_view->cellRect(m_cell);
        return QRect(m_view->mapToGlobal(local.topLeft()), local.size());
    }
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
    int columnIndex() const override { return (m_cell - 1) % PhraseBoard::kColumns; }
    int rowIndex() const override { return (m_cell - 1) / PhraseBoard::kColumns; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override {
        return m_view ? QAccessible::queryAccessibleInterface(m_view.data()) : nullptr;
    }

private:
    QPointer<PhraseView> m_view;
    int m_cell;
};

} // namespace

PhraseAccessible::PhraseAccessible(PhraseView* view)
    : QAccessibleWidget(view, QAccessible::Table) {}

PhraseAccessible::~PhraseAccessible() {
    for (const QAccessible::Id id : m_cells) {
        if (id != 0) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
}

PhraseView* PhraseAccessible::view() const {
    return static_cast<PhraseView*>(widget());
}

QAccessibleInterface* PhraseAccessible::child(int index) const {
    if (index < 0 || index >= PhraseBoard::kCells) {
        return nullptr;
    }
    QAccessible::Id& id = m_cells[static_cast<std::size_t>(index)];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(new CellAccessible(view(), index + 1));
    }
    return QAccessible::accessibleInterface(id);
}

int PhraseAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < PhraseBoard::kCells; ++i) {
        const QAccessible::Id id = m_cells[static_cast<std::size_t>(i)];
        if (id != 0 && QAccessible::accessibleInterface(id) == child) {
            return i;
        }
    }
    return -1;
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
