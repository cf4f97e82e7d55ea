// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/friendPhrase/FriendPhraseModel.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillora {

// "LA FRASE ES:": a friend types the phrase the others will guess, and sees
// how it will fill the board's three rows.
class FriendPhraseWindow final : public QDialog {
public:
    // `accepted` receives the phrase once it is good to play.
    FriendPhraseWindow(SharedState& shared, Dialogs& dialogs,
                       std::function<void(const FriendPhrase&)> accepted, QWidget* board);

    QLineEdit* themeBox() const { return m_themeBox; }
    QLineEdit* phraseBox() const { return m_wordBox; }
    QPushButton* acceptButton() const { return m_okButton; }
    QLabel* previewRow(int row) const { return m_rows[static_cast<std::size_t>(row - 1)]; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();
    void accept();

    FriendPhraseModel m_model;
    SharedState& m_shared;
    Dialogs& m_dialogs;
    std::function<void(const FriendPhrase&)> m_accepted;
    QLineEdit* m_themeBox = nullptr;
    QLineEdit* m_wordBox = nullptr;
    QPushButton* m_okButton = nullptr;
    std::array<QLabel*, 3> m_rows{};
};

} // namespace quillora
