// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// Asks the system whether a network connection is up, before the game sends
// the player to a page that needs one.
class NetworkCheck {
public:
    virtual ~NetworkCheck() = default;
    virtual bool networkAlive() = 0;
};

} // namespace quillora
