// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// What a screen reader says without the focus moving: what a key did to the
// board, a game laid or ended, a warning, a panel that opened. A player who
// cannot see the board learns from these what a player who looks sees, so
// nothing said here may give away a letter the board does not show.
class Announcer {
public:
    // A polite text waits for the speech in progress, and a newer polite text
    // takes the place of one not yet spoken, so letters typed fast do not
    // pile up; an urgent one (a game won or lost, a warning) cuts in.
    enum class Urgency { Polite, Urgent };

    virtual ~Announcer() = default;
    virtual void announce(const std::string& text, Urgency urgency = Urgency::Polite) = 0;
};

// For windows and tests that have no screen reader to tell.
class SilentAnnouncer final : public Announcer {
public:
    void announce(const std::string&, Urgency) override {}
};

} // namespace quillora
