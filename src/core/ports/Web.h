// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// The outside world of the browser: whether a network is up, and opening a
// page with the desktop's own handler.
class Web {
public:
    virtual ~Web() = default;
    virtual bool networkAlive() = 0;
    virtual void openUrl(const std::string& url) = 0;
};

// Where the game sends the player.
inline constexpr const char* kSearchUrl = "https://www.bing.com/search?q=";
inline constexpr const char* kEncyclopediaUrl = "https://es.wikipedia.org/wiki/";
inline constexpr const char* kFontDownloadUrl =
    "https://www.bing.com/search?q=Arial+Rounded+MT+Bold";

} // namespace quillora
