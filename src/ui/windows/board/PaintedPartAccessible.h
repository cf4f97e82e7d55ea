// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <functional>
#include <vector>

namespace quillora {

// A part of a painted view (a cell of the phrase, a key of the keyboard): it
// has no widget of its own and keeps no text, so every question is answered
// from the view, and so from the board, as it stands.
template <class View> class PaintedPartAccessible : public QAccessibleInterface {
public:
    PaintedPartAccessible(View* view, int part) : m_view(view), m_part(part) {}

    bool isValid() const override { return !m_view.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface* parent() const override {
        return m_view ? QAccessible::queryAccessibleInterface(m_view.data()) : nullptr;
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text t) const override {
        if (!m_view) {
            return {};
        }
        switch (t) {
        case QAccessible::Name:
            return name();
        case QAccessible::Description:
            return description();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!m_view) {
            return {};
        }
        const QRect local = partRect();
        return QRect(m_view->mapToGlobal(local.topLeft()), local.size());
    }

protected:
    // Asked only while the view is there.
    virtual QString name() const = 0;
    virtual QString description() const = 0;
    virtual QRect partRect() const = 0;

    QPointer<View> m_view;
    const int m_part;
};

// The parts' interfaces of one view, made when a screen reader first asks
// for one and kept as long as the view's own interface.
class PartInterfaces {
public:
    explicit PartInterfaces(int count) : m_ids(static_cast<std::size_t>(count), 0) {}
    ~PartInterfaces() {
        for (const QAccessible::Id id : m_ids) {
            if (id != 0) {
                QAccessible::deleteAccessibleInterface(id);
            }
        }
    }
    PartInterfaces(const PartInterfaces&) = delete;
    PartInterfaces& operator=(const PartInterfaces&) = delete;

    QAccessibleInterface* get(int index, const std::function<QAccessibleInterface*()>& make) {
        if (index < 0 || index >= static_cast<int>(m_ids.size())) {
            return nullptr;
        }
        QAccessible::Id& id = m_ids[static_cast<std::size_t>(index)];
        if (id == 0) {
            id = QAccessible::registerAccessibleInterface(make());
        }
        return QAccessible::accessibleInterface(id);
    }
    int indexOf(const QAccessibleInterface* part) const {
        for (std::size_t i = 0; i < m_ids.size(); ++i) {
            if (m_ids[i] != 0 && QAccessible::accessibleInterface(m_ids[i]) == part) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }

private:
    std::vector<QAccessible::Id> m_ids;
};

} // namespace quillora
