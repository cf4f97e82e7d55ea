// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/AccessibleControl.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QWidget>

namespace quillora {

namespace {

using Kind = AccessibleControl::Kind;

// The interface of a control that carries an AccessibleControl. It asks the
// control's description at every question, so captions that change (the
// menu's legend, the drawn theme) are heard as they stand.
class ControlInterface final : public QAccessibleWidget {
public:
    ControlInterface(QWidget* control, AccessibleControl* traits)
        : QAccessibleWidget(control, traits->role()), m_traits(traits) {}

    QString text(QAccessible::Text t) const override {
        if (!m_traits) {
            return QAccessibleWidget::text(t);
        }
        switch (m_traits->kind()) {
        case Kind::Hidden:
            return QString();
        case Kind::Secret:
            // The name and the tooltip are the game's own words; what the
            // box holds never leaves it.
            if (t == QAccessible::Name) {
                return m_traits->name();
            }
            if (t == QAccessible::Description) {
                return QAccessibleWidget::text(t);
            }
            if (t == QAccessible::Value && m_traits->length() > 0) {
                return QString(m_traits->length(), QLatin1Char('*'));
            }
            return QString();
        default:
            if (t == QAccessible::Name) {
                const QString name = m_traits->name();
                return name.isEmpty() ? QAccessibleWidget::text(t) : name;
            }
            return QAccessibleWidget::text(t);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (!m_traits) {
            return state;
        }
        switch (m_traits->kind()) {
        case Kind::Secret:
            if (role() == QAccessible::EditableText) {
                state.editable = true;
                state.passwordEdit = true;
            }
            break;
        case Kind::Hidden:
            state.invisible = true;
            state.focusable = false;
            break;
        default:
            break;
        }
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_traits && m_traits->hasPress()) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& action) override {
        if (m_traits && m_traits->hasPress() && action == pressAction()) {
            m_traits->press();
            return;
        }
        QAccessibleWidget::doAction(action);
    }

private:
    QPointer<AccessibleControl> m_traits;
};

QAccessibleInterface* gameFactory(const QString&, QObject* object) {
    if (!object || !object->isWidgetType()) {
        return nullptr;
    }
    AccessibleControl* traits = AccessibleControl::of(object);
    return traits ? new ControlInterface(static_cast<QWidget*>(object), traits) : nullptr;
}

} // namespace

AccessibleControl::AccessibleControl(QWidget* control, Kind kind, QAccessible::Role role)
    : QObject(control), m_control(control), m_kind(kind), m_role(role) {}

AccessibleControl* AccessibleControl::of(const QObject* control) {
    if (!control) {
        return nullptr;
    }
    for (QObject* child : control->children()) {
        if (auto* traits = dynamic_cast<AccessibleControl*>(child)) {
            return traits;
        }
    }
    return nullptr;
}

AccessibleControl* AccessibleControl::attach(AccessibleControl* traits) {
    static const bool installed = [] {
        QAccessible::installFactory(&gameFactory);
        return true;
    }();
    (void)installed;
    // An interface Qt made before, when the control was built, would go on
    // answering for it: it is dropped, and the next question gets ours.
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(traits->m_control);
    if (made && !dynamic_cast<ControlInterface*>(made)) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
    }
    return traits;
}

void AccessibleControl::press() const {
    if (m_press) {
        m_press();
    }
}

AccessibleControl* AccessibleControl::button(QWidget* control, Text name,
                                             std::function<void()> press) {
    auto* traits = new AccessibleControl(control, Kind::Button, QAccessible::Button);
    traits->m_name = std::move(name);
    traits->m_press = std::move(press);
    return attach(traits);
}

AccessibleControl* AccessibleControl::graphic(QWidget* control, Text name) {
    auto* traits = new AccessibleControl(control, Kind::Graphic, QAccessible::Graphic);
    traits->m_name = std::move(name);
    return attach(traits);
}

AccessibleControl* AccessibleControl::label(QWidget* control, Text name) {
    auto* traits = new AccessibleControl(control, Kind::Label, QAccessible::StaticText);
    traits->m_name = std::move(name);
    return attach(traits);
}

AccessibleControl* AccessibleControl::secret(QWidget* control, QAccessible::Role role,
                                             const QString& name, std::function<int()> length) {
    auto* traits = new AccessibleControl(control, Kind::Secret, role);
    traits->m_name = [name] { return name; };
    traits->m_length = std::move(length);
    return attach(traits);
}

AccessibleControl* AccessibleControl::hidden(QWidget* control) {
    return attach(new AccessibleControl(control, Kind::Hidden, QAccessible::Client));
}

} // namespace quillora
