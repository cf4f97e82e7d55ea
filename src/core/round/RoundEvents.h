// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// What the end of a game and the passing of turns hand over to the rest of
// the game (history, tour, points, statistics, players, countdown). The rules
// of a game do not need to know who listens.
class RoundEvents {
public:
    virtual ~RoundEvents() = default;
    virtual void nextTurn() {}
    virtual void phraseLaid() {}
    virtual void roundWon() {}
    virtual void roundLost() {}
    // A letter was played, new or tried before, and the board shows what it
    // did.
    virtual void guessPlayed() {}
    // The end of a game is on the board and, where points count, scored.
    virtual void endShown() {}
    // Every game, won or lost, with or without points, ends with the text
    // the player had to find.
    virtual void roundEnded(const std::string& /*answerText*/) {}
    // The answer box takes the place of the side panels.
    virtual void answerBoxOpened() {}
    virtual void countdownStopped() {}
    virtual void correctionAsked(bool /*asking*/) {}
    // An option changed that the configuration file keeps.
    virtual void settingsChanged() {}
    // The modes shown in the window title may have changed.
    virtual void titleChanged() {}
    // The score label is still counting towards the new points.
    virtual bool scoreCounting() const { return false; }
};

} // namespace quillora
