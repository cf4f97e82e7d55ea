// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillora {

class Round;
struct Palette;

// "EL TEMA ES:": the player who plays alone sees the theme of the drawn
// phrase, never the phrase itself, and accepts it.
class frmWord2 final : public QDialog {
public:
    frmWord2(Round& round, const Palette& palette, std::function<void()> accepted, QWidget* board);

    QLabel* themeLabel() const { return m_lblTheme; }
    QPushButton* acceptButton() const { return m_cmdOk; }
    QPushButton* moreThemesButton() const { return m_cmdOther; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void eOk();

    Round& m_round;
    std::function<void()> m_accepted;
    QLabel* m_lblTheme = nullptr;
    QPushButton* m_cmdOther = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QLineEdit* m_txtWord = nullptr;
};

} // namespace quillora
