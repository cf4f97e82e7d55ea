// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardAccessible.h"

#include "windows/board/KeyboardAccessible.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PhraseAccessible.h"
#include "windows/board/PhraseView.h"
#include "windows/board/StrikeStrip.h"
#include "windows/board/StrikesAccessible.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace quillora {

namespace {

constexpr const char* kRoleProperty = "quilloraAccessibleRole";
constexpr const char* kUnavailableProperty = "quilloraAccessibleUnavailable";

// A left click in the middle of the widget, once the screen reader's call is
// answered: what the click opens (a question, say) must not hold the call up.
void clickLater(QWidget* widget) {
    QTimer::singleShot(0, widget, [target = QPointer<QWidget>(widget)] {
        const QPointF at = QRectF(target->rect()).center();
        const QPointF global = target->mapToGlobal(at);
        QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(target, &press);
        if (!target) {
            return;
        }
        QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(target, &release);
    });
}

// A widget with the role it was given; a label keeps its text as its name.
class RoleAccessible final : public QAccessibleWidget {
public:
    RoleAccessible(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

    QString text(QAccessible::Text t) const override {
        QString text = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && text.isEmpty()) {
            if (const auto* label = qobject_cast<const QLabel*>(widget())) {
                text = label->text().trimmed();
            }
        }
        return text;
    }

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        if (widget()->property(kUnavailableProperty).toBool()) {
            s.disabled = true;
        }
        return s;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button && !state().disabled) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& action) override {
        if (action == pressAction() && role() == QAccessible::Button) {
            if (!state().disabled) {
                clickLater(widget());
            }
            return;
        }
        QAccessibleWidget::doAction(action);
    }
};

QAccessibleInterface* boardFactory(const QString&, QObject* object) {
    if (!object || !object->isWidgetType()) {
        return nullptr;
    }
    auto* widget = static_cast<QWidget*>(object);
    if (auto* phrase = dynamic_cast<PhraseView*>(widget)) {
        return new PhraseAccessible(phrase);
    }
    if (auto* keyboard = dynamic_cast<KeyboardView*>(widget)) {
        return new KeyboardAccessible(keyboard);
    }
    if (auto* strikes = dynamic_cast<StrikeStrip*>(widget)) {
        return new StrikesAccessible(strikes);
    }
    const QVariant role = widget->property(kRoleProperty);
    if (role.isValid()) {
        return new RoleAccessible(widget, static_cast<QAccessible::Role>(role.toInt()));
    }
    return nullptr;
}

} // namespace

void installBoardAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(&boardFactory);
        return true;
    }();
    Q_UNUSED(installed);
}

void setAccessibleRole(QWidget* widget, QAccessible::Role role) {
    widget->setProperty(kRoleProperty, static_cast<int>(role));
    // A label made with its text told a listening screen reader of it at
    // once, and Qt keeps the interface it made then: it is made anew, with
    // the role.
    if (!QAccessible::isActive()) {
        return;
    }
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(widget);
    if (made && made->role() != role) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
    }
}

void setAccessibleUnavailable(QWidget* widget, bool unavailable) {
    if (widget->property(kUnavailableProperty).toBool() == unavailable) {
        return;
    }
    widget->setProperty(kUnavailableProperty, unavailable);
    QAccessible::State changed;
    changed.disabled = true;
    QAccessibleStateChangeEvent event(widget, changed);
    QAccessible::updateAccessibility(&event);
}

void setSpokenName(QWidget* widget, const QString& name) {
    if (widget->accessibleName() != name) {
        widget->setAccessibleName(name);
    }
}

void setSpokenDescription(QWidget* widget, const QString& description) {
    if (widget->accessibleDescription() != description) {
        widget->setAccessibleDescription(description);
    }
}

void announceChildren(QWidget* view, const QList<int>& children, QAccessible::Event change) {
    // With no screen reader about, or a hidden view, nobody listens; what
    // changed is read when it is asked for.
    if (children.isEmpty() || !view->isVisible() || !QAccessible::isActive()) {
        return;
    }
    QAccessibleInterface* parent = QAccessible::queryAccessibleInterface(view);
    if (!parent) {
        return;
    }
    for (const int index : children) {
        if (QAccessibleInterface* child = parent->child(index)) {
            if (change == QAccessible::StateChanged) {
                // Whether the child shows and whether it can be used are what
                // changes for the board's painted items.
                QAccessible::State states;
                states.invisible = true;
                states.disabled = true;
                QAccessibleStateChangeEvent event(child, states);
                QAccessible::updateAccessibility(&event);
            } else {
                QAccessibleEvent event(child, change);
                QAccessible::updateAccessibility(&event);
            }
        }
    }
}

QString focusMarkStyle(const QString& selector, bool darkControl) {
    return QStringLiteral("%1:focus { border: 3px solid %2; }")
        .arg(selector, darkControl ? QStringLiteral("white") : QStringLiteral("black"));
}

} // namespace quillora
