// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/FolderListAccessible.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QListView>
#include <QPersistentModelIndex>
#include <QPointer>

namespace quillora {

namespace {

constexpr const char* kFolderListProperty = "quilloraFolderList";

// One entry of the folder. It keeps no text: every question is asked of the
// list's model, so the entry answers for its row as it stands.
class EntryAccessible final : public QAccessibleInterface {
public:
    EntryAccessible(QListView* list, const QModelIndex& index) : m_list(list), m_index(index) {}

    const QPersistentModelIndex& index() const { return m_index; }
    bool isOf(const QListView* list) const { return m_list == list; }

    bool isValid() const override { return m_list && m_index.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface* parent() const override {
        return m_list ? QAccessible::queryAccessibleInterface(m_list.data()) : nullptr;
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name && isValid() ? m_index.data(Qt::DisplayRole).toString()
                                                   : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const QRect local = m_list->visualRect(m_index);
        return QRect(m_list->viewport()->mapToGlobal(local.topLeft()), local.size());
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!isValid()) {
            s.invalid = true;
            return s;
        }
        s.selectable = true;
        s.focusable = true;
        s.selected = m_list->selectionModel() && m_list->selectionModel()->isSelected(m_index);
        s.focused = m_list->hasFocus() && m_list->currentIndex() == m_index;
        s.invisible = !m_list->isVisible();
        s.offscreen = !m_list->viewport()->rect().intersects(m_list->visualRect(m_index));
        return s;
    }

private:
    QPointer<QListView> m_list;
    QPersistentModelIndex m_index;
};

class FolderListInterface final : public QAccessibleWidget {
public:
    explicit FolderListInterface(QListView* list) : QAccessibleWidget(list, QAccessible::List) {}
    ~FolderListInterface() override { forget(); }
    FolderListInterface(const FolderListInterface&) = delete;
    FolderListInterface& operator=(const FolderListInterface&) = delete;

    int childCount() const override {
        const QAbstractItemModel* model = list()->model();
        return model ? model->rowCount(list()->rootIndex()) : 0;
    }
    QAccessibleInterface* child(int row) const override {
        const QAbstractItemModel* model = list()->model();
        if (!model || row < 0 || row >= childCount()) {
            return nullptr;
        }
        return entryFor(model->index(row, list()->modelColumn(), list()->rootIndex()));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* entry = dynamic_cast<const EntryAccessible*>(child);
        if (!entry || !entry->isOf(list())) {
            return -1;
        }
        const QPersistentModelIndex& index = entry->index();
        return index.isValid() && index.parent() == list()->rootIndex() ? index.row() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QModelIndex index = list()->indexAt(list()->viewport()->mapFromGlobal(QPoint(x, y)));
        return index.isValid() ? entryFor(index) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const QModelIndex current = list()->currentIndex();
        return list()->hasFocus() && current.isValid() ? entryFor(current) : nullptr;
    }

private:
    QListView* list() const { return static_cast<QListView*>(widget()); }

    // Entries are kept by the model's own mark for the file, which stays put
    // while the rows around it come and go; a new model starts afresh.
    QAccessibleInterface* entryFor(const QModelIndex& index) const {
        if (list()->model() != m_model) {
            forget();
            m_model = list()->model();
        }
        const QAccessible::Id known = m_entries.value(index.internalId());
        if (known != 0) {
            auto* entry = static_cast<EntryAccessible*>(QAccessible::accessibleInterface(known));
            if (entry && entry->index() == index) {
                return entry;
            }
            QAccessible::deleteAccessibleInterface(known);
        }
        const QAccessible::Id id =
            QAccessible::registerAccessibleInterface(new EntryAccessible(list(), index));
        m_entries.insert(index.internalId(), id);
        return QAccessible::accessibleInterface(id);
    }
    void forget() const {
        for (const QAccessible::Id id : std::as_const(m_entries)) {
            QAccessible::deleteAccessibleInterface(id);
        }
        m_entries.clear();
    }

    mutable QPointer<QAbstractItemModel> m_model;
    mutable QHash<quintptr, QAccessible::Id> m_entries;
};

QAccessibleInterface* folderListFactory(const QString&, QObject* object) {
    if (!object || !object->property(kFolderListProperty).toBool()) {
        return nullptr;
    }
    auto* list = qobject_cast<QListView*>(object);
    return list ? new FolderListInterface(list) : nullptr;
}

} // namespace

void makeFolderListHeard(QListView* list) {
    static const bool installed = [] {
        QAccessible::installFactory(&folderListFactory);
        return true;
    }();
    Q_UNUSED(installed);
    list->setProperty(kFolderListProperty, true);
}

void announceFolderRows(QListView* list, int first, int last) {
    if (!QAccessible::isActive()) {
        return;
    }
    for (int row = first; row <= last; ++row) {
        QAccessibleEvent created(list, QAccessible::ObjectCreated);
        created.setChild(row);
        QAccessible::updateAccessibility(&created);
    }
}

} // namespace quillora
