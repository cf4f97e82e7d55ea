// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

class Dialogs;
class HistoryPanelModel;
class Round;
class WebLookUp;
struct SharedState;

// What the board hands to the desktop: the phrase or a history entry looked
// up on the web, the help and the about box.
class BoardLookUps {
public:
    BoardLookUps(const SharedState& shared, Dialogs& dialogs, WebLookUp& lookUp, const Round& round,
                 const HistoryPanelModel& history)
        : m_shared(shared), m_dialogs(dialogs), m_lookUp(lookUp), m_round(round),
          m_history(history) {}

    // "¿Qué es eso?" under the board once a game is over: the phrase, in
    // small letters, on the search engine or the encyclopedia.
    void lookUpAnswer();
    // The history's "Buscar" menu: the entry chosen for it.
    void lookUpHistoryEntry();
    // F1 and "Ayuda".
    void openHelp();
    // "Acerca".
    void showAbout();

private:
    const SharedState& m_shared;
    Dialogs& m_dialogs;
    WebLookUp& m_lookUp;
    const Round& m_round;
    const HistoryPanelModel& m_history;
};

} // namespace quillora
