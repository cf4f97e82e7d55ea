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

class QlvsModel;

// The box for answering the whole phrase at once (frmeWord).
class AnswerPanel final : public QWidget {
public:
    // `shortcut` gives the board's own keys the first word while the box has
    // the focus; it answers whether it took the key.
    AnswerPanel(QlvsModel& model, std::function<void()> changed,
                std::function<bool(QKeyEvent*)> shortcut, QWidget* board);

    void sync();
    void paint(const QString& gameColour);

    QLineEdit* answerBox() const { return m_txtWord; }
    QPushButton* okButton() const { return m_cmdOk; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void okPressed();

    QlvsModel& m_model;
    std::function<void()> m_changed;
    std::function<bool(QKeyEvent*)> m_shortcut;
    QLabel* m_lblPrompt = nullptr;
    QLineEdit* m_txtWord = nullptr;
    QPushButton* m_cmdOk = nullptr;
};

} // namespace quillora
