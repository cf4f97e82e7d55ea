// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace quillora {

class QlvsModel;

// The session panel drawn over the board: the user, the other sessions, and
// the key that locks the board.
class SessionPanel final : public QWidget {
public:
    SessionPanel(QlvsModel& model, std::function<void()> changed, QWidget* board);

    // Brings the panel in step with the model.
    void sync();

    QLabel* userLabel() const { return m_lblUser; }
    QLineEdit* userBox() const { return m_txtUser; }
    QListWidget* sessionList() const { return m_lstSessions; }
    QLineEdit* keyBox() const { return m_txtKey; }
    QLineEdit* secondKeyBox() const { return m_txtKey2; }
    QLabel* keyCaption() const { return m_lblKey; }
    QLabel* warning() const { return m_lblWarning; }
    QPushButton* enterButton() const { return m_cmdEnter; }
    QLabel* cancelLabel() const { return m_lblCancel; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // While the panel covers the board, Tab walks its own boxes only: the
    // board behind it can take no key.
    bool focusNextPrevChild(bool next) override;

private:
    QLineEdit* activeKeyBox() const;
    void enter();

    QlvsModel& m_model;
    std::function<void()> m_changed;
    QLabel* m_lblUser = nullptr;
    QLineEdit* m_txtUser = nullptr;
    QListWidget* m_lstSessions = nullptr;
    QWidget* m_frmeKey = nullptr;
    QLabel* m_lblKey = nullptr;
    QLineEdit* m_txtKey = nullptr;
    QLineEdit* m_txtKey2 = nullptr;
    QPushButton* m_cmdEnter = nullptr;
    QLabel* m_lblCancel = nullptr;
    QLabel* m_lblWarning = nullptr;
};

} // namespace quillora
