// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/KeyboardAccessible.h"

#include "models/board/BoardModel.h"
#include "models/board/BoardSpeech.h"
#include "windows/QtColour.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PaintedPartAccessible.h"

#include <QTimer>

#include <array>

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

class KeyAccessible final : public PaintedPartAccessible<KeyboardView>,
                            public QAccessibleActionInterface {
public:
    using PaintedPartAccessible::PaintedPartAccessible;

    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!m_view) {
            s.invalid = true;
            return s;
        }
        s.invisible = !m_view->isVisible() || !m_view->keyShown(m_part);
        s.disabled = !m_view->keyUsable(m_part);
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
        QTimer::singleShot(0, m_view.data(),
                           [keyboard = m_view, key = m_part] { keyboard->press(key); });
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QString name() const override { return qs(spokenKeyName(m_view->answerBox(), m_part)); }
    QString description() const override { return qs(spokenKeyDescription(round(), m_part)); }
    QRect partRect() const override { return m_view->keyRect(m_part); }
    const Round& round() const { return m_view->round(); }
};

} // namespace

KeyboardAccessible::KeyboardAccessible(KeyboardView* keyboard)
    : QAccessibleWidget(keyboard, QAccessible::Grouping) {}

KeyboardAccessible::~KeyboardAccessible() = default;

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
    return m_keys.get(index,
                      [this, index] { return new KeyAccessible(keyboard(), keyOfChild(index)); });
}

int KeyboardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return m_keys.indexOf(child);
}

QAccessibleInterface* KeyboardAccessible::childAt(int x, int y) const {
    const int key = keyboard()->keyAt(keyboard()->mapFromGlobal(QPoint(x, y)));
    return key >= 0 ? child(childOfKey(key)) : nullptr;
}

} // namespace quillora
