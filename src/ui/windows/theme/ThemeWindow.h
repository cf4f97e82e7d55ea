// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillora {

class Dialogs;
class PhraseChoice;
struct SharedState;
class ThemesListWindow;

// "EL TEMA ES:": the player who plays alone sees the theme of the drawn
// phrase, never the phrase itself, and accepts it or picks other themes.
class ThemeWindow final : public QDialog {
public:
    // `changed` runs whenever the board has something new to show: a phrase
    // laid, or a tour started from the themes list.
    ThemeWindow(PhraseChoice& choice, SharedState& shared, Dialogs& dialogs,
                std::function<void()> changed, QWidget* board);
    ~ThemeWindow() override;
    ThemeWindow(const ThemeWindow&) = delete;
    ThemeWindow& operator=(const ThemeWindow&) = delete;

    QLabel* themeLabel() const { return m_themeLabel; }
    QPushButton* acceptButton() const { return m_okButton; }
    QPushButton* moreThemesButton() const { return m_otherButton; }
    ThemesListWindow* themesList() const { return m_list; }
    // " Más temas " and a click on the theme.
    void openThemesList();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showDraw();
    void acceptPhrase();

    PhraseChoice& m_choice;
    SharedState& m_shared;
    Dialogs& m_dialogs;
    std::function<void()> m_changed;
    QLabel* m_themeLabel = nullptr;
    QPushButton* m_otherButton = nullptr;
    QPushButton* m_okButton = nullptr;
    QLineEdit* m_wordBox = nullptr;
    ThemesListWindow* m_list = nullptr;
    // A phrase was laid from here, or a tour took over: the window is done.
    bool m_finished = false;
};

} // namespace quillora
