// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

class Dialogs;
class Round;
class TipModel;
struct SharedState;

// The board's menu entries that change an option or leave the board: sounds,
// the automatic phrase, the animation, the hidden JUGAR button, a restart and
// the way back to the main menu. The window reads the two requests to leave
// once the event is over.
class BoardCommands {
public:
    BoardCommands(SharedState& shared, Dialogs& dialogs, Round& round, TipModel& tip)
        : m_shared(shared), m_dialogs(dialogs), m_round(round), m_tip(tip) {}

    // "Nuevo partida" and F2.
    void clearBoard();
    void toggleAutoPhrase();
    // The sound button, "Mostrar sonidos" and Ctrl+S.
    void toggleSounds();
    const char* soundButtonTooltip() const;
    // "Estado animado"; a still board puts the tip strip away too.
    void toggleAnimation();
    // "Desaparecer botón" and the restore label.
    void hidePlayButton(bool hidden);

    // F3: asks first. The popup's "Reiniciar" restarts at once.
    void askRestart();
    void restartNow();
    bool restartRequested() const { return m_restart; }
    // "Volver al menú", Alt+Backspace.
    void backToMenu();
    bool menuRequested() const { return m_toMenu; }

private:
    SharedState& m_shared;
    Dialogs& m_dialogs;
    Round& m_round;
    TipModel& m_tip;
    bool m_restart = false;
    bool m_toMenu = false;
};

} // namespace quillora
