// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillora {

class Dialogs;
class PhraseChoice;
struct SharedState;

// "Lista de temas:": the player who plays alone marks the themes the game
// draws from, opened beside the phrase window. Rows are the themes in
// number order, the player's own after the fifty; a highlighted row is a
// marked theme.
class ThemesListModel {
public:
    // Holding the mouse down this long on the list accepts and plays.
    static constexpr int kGoTickMs = 500;
    // The list opens right of and above the phrase window, never above the
    // top of the screen by less than this.
    static constexpr int kRightOfPhraseWindow = 1440;
    static constexpr int kAbovePhraseWindow = 1920;
    static constexpr int kMinTop = 60;
    static int placeLeft(int phraseWindowLeft) { return phraseWindowLeft + kRightOfPhraseWindow; }
    static int placeTop(int phraseWindowTop) {
        const int top = phraseWindowTop - kAbovePhraseWindow;
        return top < kMinTop ? kMinTop : top;
    }

    // What the window must do after an action.
    enum class Outcome {
        Stay,
        // The selection is stored and the phrase window shows its new draw.
        Accepted,
        // Accepted, and the phrase window's phrase is to be played at once.
        Play,
        // A thematic tour started its first game: the phrase window goes too.
        Tour
    };

    ThemesListModel(SharedState& shared, PhraseChoice& choice, Dialogs& dialogs);

    // The opening: two or more marked themes show highlighted; fewer show
    // none, so a single theme is never taken for a choice made here.
    void load();
    const std::vector<std::string>& names() const { return m_names; }
    int rows() const { return static_cast<int>(m_names.size()); }
    bool highlighted(int row) const;
    void setHighlighted(int row, bool on);
    // " Aceptar " can be used while anything is highlighted.
    bool acceptEnabled() const;

    // The list's menu.
    void selectAll();
    void clearAll();
    Outcome tour();
    // "Añadir temas…": the chosen file is checked as the start checks the
    // folder, told about, and copied into the folder of one's own themes
    // under its own name, never over a file already there. True when the
    // list gained its theme, as a last row.
    bool addThemeFile(const std::filesystem::path& file);
    // The folder of one's own themes, made when missing, to be opened in
    // the file manager.
    std::filesystem::path themesFolder();

    // acceptChoice: " Aceptar " and a double click.
    Outcome acceptChoice();

    // Press-and-hold.
    void press() { m_going = true; }
    void release() { m_going = false; }
    bool goTimerRunning() const { return m_going; }
    Outcome tickGo();

private:
    SharedState& m_shared;
    PhraseChoice& m_choice;
    Dialogs& m_dialogs;
    std::vector<std::string> m_names;
    std::vector<bool> m_highlighted;
    bool m_going = false;
};

} // namespace quillora
