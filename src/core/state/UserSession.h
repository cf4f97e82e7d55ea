// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// One of the four user slots. Every field is text, numbers as their decimal
// text, so a slot is a plain copy of what the user had when it was left.
struct UserSession {
    std::string points;         // 0: normal points
    std::string survivalPoints; // 1
    std::string theme;          // 2: current theme number
    std::string history;        // 3: played phrases joined by CR LF
    std::string corrections;    // 4: strike corrections left
    std::string key;            // 5: the key that locked the session
    std::string locked;         // 6: "1" locked, "0" not
    std::string filePath;       // 7: full path of the configuration file
    std::string displayName;    // 8
    std::string tour;           // 9: thematic tour position, "0" none

    bool inUse() const { return !filePath.empty(); }
};

} // namespace quillora
