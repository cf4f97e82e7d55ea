// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QStringList>
#include <QWidget>

#include <set>
#include <string>
#include <vector>

namespace quillora {

// A window as a screen reader finds it: the tree of Qt's accessibility
// interfaces under it, read the way an assistive technology reads them.
class AccessibleTree {
public:
    explicit AccessibleTree(QWidget* window)
        : m_root(QAccessible::queryAccessibleInterface(window)) {
        walk(m_root, false);
    }

    QAccessibleInterface* root() const { return m_root; }

    // The controls a player can reach or press, on screen, that a screen
    // reader could not name or could not tell what to do with, one a line.
    std::string unheardControls() const {
        static const std::set<QAccessible::Role> controls{
            QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
            QAccessible::ComboBox, QAccessible::EditableText, QAccessible::List,
            QAccessible::SpinBox,  QAccessible::Slider,       QAccessible::ScrollBar,
            QAccessible::Table,    QAccessible::ButtonMenu,   QAccessible::PageTabList};
        std::string unheard;
        for (QAccessibleInterface* control : m_shown) {
            if (control == m_root || !usable(control)) {
                continue;
            }
            const QString name = control->text(QAccessible::Name).trimmed();
            if (name.isEmpty() || !controls.contains(control->role())) {
                unheard += describe(control) + "\n";
            }
        }
        return unheard;
    }

    // How many controls a player can use: a check that the walk found them.
    int usableControls() const {
        int count = 0;
        for (QAccessibleInterface* control : m_shown) {
            count += control != m_root && usable(control) ? 1 : 0;
        }
        return count;
    }

    // Everything a screen reader could read out, hidden controls included:
    // names, descriptions, values and the text of the text boxes.
    QString everything() const {
        QStringList heard;
        for (QAccessibleInterface* node : m_all) {
            for (const QAccessible::Text t :
                 {QAccessible::Name, QAccessible::Description, QAccessible::Value,
                  QAccessible::Help, QAccessible::Accelerator}) {
                heard << node->text(t);
            }
            if (QAccessibleTextInterface* text = node->textInterface()) {
                heard << text->text(0, text->characterCount());
            }
            if (QAccessibleValueInterface* value = node->valueInterface()) {
                heard << value->currentValue().toString();
            }
        }
        return heard.join(QLatin1Char('\n'));
    }

    // The interface the tree holds for `widget`, or none.
    QAccessibleInterface* find(QWidget* widget) const {
        for (QAccessibleInterface* node : m_all) {
            if (node->object() == widget) {
                return node;
            }
        }
        return nullptr;
    }

private:
    void walk(QAccessibleInterface* node, bool hidden) {
        if (!node) {
            return;
        }
        m_all.push_back(node);
        hidden = hidden || node->state().invisible;
        if (!hidden) {
            m_shown.push_back(node);
        }
        for (int i = 0; i < node->childCount(); ++i) {
            walk(node->child(i), hidden);
        }
    }

    // A control of its own (not an item of a list), that Tab reaches or
    // that can be pressed.
    static bool usable(QAccessibleInterface* node) {
        QObject* object = node->object();
        if (!object || !object->isWidgetType() ||
            QAccessible::queryAccessibleInterface(object) != node) {
            return false;
        }
        if (node->state().focusable) {
            return true;
        }
        const QStringList actions =
            node->actionInterface() ? node->actionInterface()->actionNames() : QStringList();
        return actions.contains(QAccessibleActionInterface::pressAction()) ||
               actions.contains(QAccessibleActionInterface::toggleAction());
    }

    static std::string describe(QAccessibleInterface* node) {
        return QStringLiteral("%1 (role %2, name \"%3\")")
            .arg(QString::fromLatin1(node->object()->metaObject()->className()))
            .arg(static_cast<int>(node->role()))
            .arg(node->text(QAccessible::Name))
            .toStdString();
    }

    QAccessibleInterface* m_root;
    std::vector<QAccessibleInterface*> m_all;
    std::vector<QAccessibleInterface*> m_shown;
};

} // namespace quillora
