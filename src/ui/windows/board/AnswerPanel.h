// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quillora {

class AnswerBox;

// The box for answering the whole phrase at once.
class AnswerPanel final : public QWidget {
public:
    // `shortcut` gives the board's own keys the first word while the box has
    // the focus; it answers whether it took the key.
    AnswerPanel(AnswerBox& box, std::function<void()> changed,
                std::function<bool(QKeyEvent*)> shortcut, QWidget* board);

    void sync();
    void paint(const QString& gameColour);

    QLineEdit* answerBox() const { return m_wordBox; }
    QPushButton* okButton() const { return m_okButton; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void okPressed();

    AnswerBox& m_box;
    std::function<void()> m_changed;
    std::function<bool(QKeyEvent*)> m_shortcut;
    QLabel* m_promptLabel = nullptr;
    QLineEdit* m_wordBox = nullptr;
    QPushButton* m_okButton = nullptr;
};

} // namespace quillora
