// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class QLineEdit;

namespace quillora {

// Lets into a text box only the characters its rule accepts, whether they
// are typed, or composed by dead keys and input methods, which reach a box
// without a key press of their own.
class TypedTextFilter final : public QObject {
public:
    // `accepts` is asked for each character with the box's text before it.
    using Rule = std::function<bool(char32_t character, const QString& textBefore)>;
    TypedTextFilter(QLineEdit* box, Rule accepts);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_box;
    Rule m_accepts;
};

} // namespace quillora
