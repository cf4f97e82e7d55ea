// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/KeyboardAccessible.h"

#include "models/frmQlvs/BoardSpeech.h"
#include "models/frmQlvs/QlvsModel.h"
#include "windows/QtColour.h"
#include "windows/frmQlvs/KeyboardView.h"

#include <QPointer>
#include <QTimer>

namespace quillora {

namespace {

// Row one (A..N, "123"), row two (Ñ, O..Z, "Escribir"), then the digit
// panel ("1".."9", "0", "x").
constexpr std::array<int, kKeyCount> kReadingOrder{1,  2,  3,  4,         5,
                                                   6,  7,  8,  9,         10,
                                                   11, 12, 13, 14,        kDigitPanelKey,
                                                   15, 16, 17, 18,        19,
                                                   20, 21, 22, 23,        24,
                                                   25, 26, 27, kWriteKey, 28,
                                                   29, 30, 31, 32,        33,
                                                   34, 35, 36, 37,        kCloseDigitsKey};

class KeyAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    KeyAccessible(KeyboardView* keyboard, int key) : m_keyboard(keyboard), m_key(key) {}

    bool isValid() const override { return !m_keyboard.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return m_keyboard ? QAccessible::queryAccessibleInterface(m_keyboard.data()) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text t) const override {
        if (!m_keyboard) {
            return {};
        }
        const Round& round = m_keyboard->model().round();
        switch (t) {
        case QAccessible::Name:
            return qs(spokenKeyName(round, m_key));
        case QAccessible::Description:
            return qs(spokenKeyDescription(round, m_key));
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        if (!m_keyboard) {
            return {};
        }
        const QRect local = m_keyboard->keyRect(m_key);
        return QRect(m_keyboard->mapToGlobal(local.topLeft()), local.size());
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!m_keyboard) {
            s.invalid = true;
            return s;
        }
        s.invisible = !m_keyboard->isVisible() || !m_keyboard->keyShown(m_key);
        s.disabled = !m_keyboard->keyUsable(m_key);
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override {
        return state().disabled || state().invisible ? QStringList() : QStringList{pressAction()};
    }
    void doAction(const QString& action) override {
        if (action != pressAction() || !actionNames().contains(action)) {
            return;
        }
        // Answered first: a guess may end the game, and the end may ask
        // the player something.
        QTimer::singleShot(0, m_keyboard.data(),
                           [keyboard = m_keyboard, key = m_key] { keyboard->press(key); });
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<KeyboardView> m_keyboard;
    int m_key;
};

} // namespace

KeyboardAccessible::KeyboardAccessible(KeyboardView* keyboard)
    : QAccessibleWidget(keyboard, QAccessible::Grouping) {}

KeyboardAccessible::~KeyboardAccessible() {
    for (const QAccessible::Id id : m_keys) {
        if (id != 0) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }
}

int KeyboardAccessible::keyOfChild(int index) {
    return kReadingOrder[static_cast<std::size_t>(index)];
}

int KeyboardAccessible::childOfKey(int key) {
    for (int i = 0; i < kKeyCount; ++i) {
        if (kReadingOrder[static_cast<std::size_t>(i)] == key) {
            return i;
        }
    }
    return -1;
}

KeyboardView* KeyboardAccessible::keyboard() const {
    return static_cast<KeyboardView*>(widget());
}

QAccessibleInterface* KeyboardAccessible::child(int index) const {
    if (index < 0 || index >= kKeyCount) {
        return nullptr;
    }
    QAccessible::Id& id = m_keys[static_cast<std::size_t>(index)];
    if (id == 0) {
        id = QAccessible::registerAccessibleInterface(
            new KeyAccessible(keyboard(), keyOfChild(index)));
    }
    return QAccessible::accessibleInterface(id);
}

int KeyboardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < kKeyCount; ++i) {
        const QAccessible::Id id = m_keys[static_cast<std::size_t>(i)];
        if (id != 0 && QAccessible::accessibleInterface(id) == child) {
            return i;
        }
    }
    return -1;
}

QAccessibleInterface* KeyboardAccessible::childAt(int x, int y) const {
    const int key = keyboard()->keyAt(keyboard()->mapFromGlobal(QPoint(x, y)));
    return key >= 0 ? child(childOfKey(key)) : nullptr;
}

} // namespace quillora
