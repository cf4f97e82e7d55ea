// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Sessions.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace quillora {

class BoardAppearance;
class BoardSessions;

// The session panel drawn over the board: the user, the other sessions, and
// the key that locks the board.
class SessionPanel final : public QWidget {
public:
    SessionPanel(BoardSessions& sessions, const BoardAppearance& look,
                 std::function<void()> changed, QWidget* board);

    // Brings the panel in step with the model.
    void sync();
    // Tab and Shift+Tab while the panel covers the board: round its own
    // controls only, wherever the focus was.
    bool tabWithin(bool next);

    QLabel* userLabel() const { return m_userLabel; }
    QLineEdit* userBox() const { return m_userBox; }
    QListWidget* sessionList() const { return m_sessionsList; }
    QLineEdit* keyBox() const { return m_keyBox; }
    QLineEdit* secondKeyBox() const { return m_key2Box; }
    QLabel* keyCaption() const { return m_keyLabel; }
    QLabel* warning() const { return m_warningLabel; }
    QPushButton* enterButton() const { return m_enterButton; }
    QLabel* cancelLabel() const { return m_cancelLabel; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // While the panel covers the board, Tab walks its own controls only: the
    // board behind it can take no key.
    bool focusNextPrevChild(bool next) override;

private:
    // The "+ Agregar sesión" menu at `at`, and what its entry does.
    void offerAdd(QPoint at);
    void addSession();
    void switchTo(QListWidgetItem* item);
    QLineEdit* activeKeyBox() const;
    void enter();

    BoardSessions& m_sessions;
    const BoardAppearance& m_look;
    std::function<void()> m_changed;
    QString m_style;
    std::vector<Sessions::Entry> m_entries;
    double m_entriesFactor = 1.0;
    QLabel* m_userLabel = nullptr;
    QLineEdit* m_userBox = nullptr;
    QListWidget* m_sessionsList = nullptr;
    QWidget* m_keyFrame = nullptr;
    QLabel* m_keyLabel = nullptr;
    QLineEdit* m_keyBox = nullptr;
    QLineEdit* m_key2Box = nullptr;
    QPushButton* m_enterButton = nullptr;
    QLabel* m_cancelLabel = nullptr;
    QLabel* m_warningLabel = nullptr;
};

} // namespace quillora
