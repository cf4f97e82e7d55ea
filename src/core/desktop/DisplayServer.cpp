// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/DisplayServer.h"

#include <algorithm>

namespace quillora {

std::string preferredPlatform(const std::vector<std::string>& arguments, const char* chosenPlatform,
                              const char* x11Display) {
    // The toolkit takes its option with one dash or two.
    const bool chosenOnCommandLine =
        std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
            return argument == "-platform" || argument == "--platform";
        });
    const bool chosen = chosenOnCommandLine || (chosenPlatform && *chosenPlatform);
    if (chosen || !x11Display || !*x11Display) {
        return {};
    }
    return "xcb;wayland";
}

} // namespace quillora
