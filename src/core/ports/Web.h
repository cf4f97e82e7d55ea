// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// The desktop's own handler for pages and files: the browser, as the player
// has chosen it.
class Web {
public:
    virtual ~Web() = default;
    // A full URL, already encoded; a failure is not the game's to report.
    virtual void openUrl(const std::string& url) = 0;
};

} // namespace quillora
