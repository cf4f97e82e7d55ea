// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillora {

class Dialogs;
struct SharedState;

// "Historial de frases y palabras:": the phrases played in this session, in
// the order their games ended. The list is the board's; the session keeps
// it as one text, the entries joined by CR LF, so it follows the user
// through a switch and back but never reaches a file.
class HistoryPanelModel {
public:
    HistoryPanelModel(SharedState& shared, Dialogs& dialogs);

    // The board's opening: the session's text split back into entries.
    void load();
    // The end of a game: its answer goes last, and the session's text
    // follows (joinHistory).
    void add(const std::string& answerText);
    void joinHistory();
    const std::vector<std::string>& entries() const { return m_entries; }

    // A double click on the list offers to empty it.
    void askToClear();

    // The right button on the list: with an entry selected (row 0 and up) it
    // becomes the text to look up, in small letters, and the "Buscar" menu
    // is wanted.
    bool chooseForLookUp(int selectedRow);
    const std::string& lookUpText() const { return m_lookUpText; }

private:
    SharedState& m_shared;
    Dialogs& m_dialogs;
    std::vector<std::string> m_entries;
    std::string m_lookUpText;
};

} // namespace quillora
