// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

class BoardCommands;
class Dialogs;
class Scoring;
struct SharedState;

// Going into survival mode and out of it. The mode is saved and the board
// reopens where it stands, in the new mode; once the new board's top is
// checked, the switch is told once. While survival has no points left the
// board offers "Reiniciar" and "Consigue puntos".
class SurvivalSwitch {
public:
    SurvivalSwitch(SharedState& shared, Dialogs& dialogs, const Scoring& scoring,
                   BoardCommands& commands)
        : m_shared(shared), m_dialogs(dialogs), m_scoring(scoring), m_commands(commands) {}

    // The popup's "Modo supervivencia" / "Modo normal", offered to one player
    // with the points system on.
    bool entryShown() const;
    void toggle();
    void enter() { switchTo(true); }
    void leave() { switchTo(false); }
    // F5: asks before leaving survival mode; does nothing out of it.
    void askLeave();
    bool reopenRequested() const { return m_reopen; }
    void tickAnnounce();

    bool againShown() const;
    void againRestart();
    void againGetPoints() { leave(); }

private:
    void switchTo(bool on);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    const Scoring& m_scoring;
    BoardCommands& m_commands;
    bool m_reopen = false;
};

} // namespace quillora
