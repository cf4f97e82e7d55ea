// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/board/SessionPanelModel.h"
#include "storage/Sessions.h"

#include <string>
#include <vector>

namespace quillora {

class BoardAppearance;
class BoardCommands;
class Dialogs;
class Random;
class Round;
struct SharedState;

// The users of the board and its lock: the session panel that F4 slides
// down, the list of users, adding, switching and deleting one, the key, and
// files dropped on the board. A change of user starts the game again.
class BoardSessions {
public:
    BoardSessions(SharedState& shared, Dialogs& dialogs, Random& random, const Round& round,
                  BoardCommands& commands, BoardAppearance& appearance)
        : m_shared(shared), m_dialogs(dialogs), m_round(round), m_commands(commands),
          m_appearance(appearance), m_sessions(shared, dialogs, random), m_panel(shared) {}

    SessionPanelModel& panel() { return m_panel; }
    const SessionPanelModel& panel() const { return m_panel; }
    // F4 and "Bloquear".
    void togglePanel();
    void toggleList();
    std::vector<Sessions::Entry> entries() const { return m_sessions.entries(); }
    std::string displayName() const;
    bool deleteShown() const;
    void add(const std::string& typedName, std::string& shownName);
    void switchTo(int slot);
    void deleteCurrent();
    void keyEntered(const std::string& typed) { m_panel.enterKey(typed); }
    bool dropsAccepted() const;
    void dropFiles(const std::vector<std::string>& paths);

private:
    void changed(bool changed);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    const Round& m_round;
    BoardCommands& m_commands;
    BoardAppearance& m_appearance;
    Sessions m_sessions;
    SessionPanelModel m_panel;
};

} // namespace quillora
