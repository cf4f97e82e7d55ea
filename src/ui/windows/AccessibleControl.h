// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace quillora {

// How a screen reader hears a control the game draws its own way: a label the
// player clicks, a tile the window paints, a box whose text must stay unheard.
// It rides on the control as a child object, where the game's accessibility
// factory looks for it before Qt's own interfaces are made.
class AccessibleControl final : public QObject {
public:
    using Text = std::function<QString()>;
    enum class Kind { Button, Graphic, Label, Secret, Hidden };

    // Heard as a push button; its press action runs `press`.
    static AccessibleControl* button(QWidget* control, Text name, std::function<void()> press);
    // A picture or a plain text, heard by `name` alone.
    static AccessibleControl* graphic(QWidget* control, Text name);
    static AccessibleControl* label(QWidget* control, Text name);
    // Heard by its role and `name` only, whatever it holds: no value, no
    // text, no events that carry its contents. An editable one tells a
    // screen reader it is a password box and gives one star per character,
    // which `length` counts.
    static AccessibleControl* secret(QWidget* control, QAccessible::Role role, const QString& name,
                                     std::function<int()> length = {});
    // Not heard at all: a decoration.
    static AccessibleControl* hidden(QWidget* control);

    // What `control` carries, if anything.
    static AccessibleControl* of(const QObject* control);

    Kind kind() const { return m_kind; }
    QAccessible::Role role() const { return m_role; }
    QString name() const { return m_name ? m_name() : QString(); }
    int length() const { return m_length ? m_length() : 0; }
    bool hasPress() const { return static_cast<bool>(m_press); }
    void press() const;

private:
    AccessibleControl(QWidget* control, Kind kind, QAccessible::Role role);
    // The factory takes over the control's interface from now on.
    static AccessibleControl* attach(AccessibleControl* traits);

    QWidget* m_control;
    Kind m_kind;
    QAccessible::Role m_role;
    Text m_name;
    std::function<void()> m_press;
    std::function<int()> m_length;
};

} // namespace quillora
