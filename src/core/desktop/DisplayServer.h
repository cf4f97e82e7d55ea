// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillora {

// Which display server the game asks the toolkit for, before its first
// window. The game places its windows beside the board ("EL TEMA ES:", the
// themes, the design window), and Wayland lets no window place itself; so
// where an X server is at hand too (XWayland, which the big desktops run),
// X11 comes first, Wayland second should the X server not answer. The
// player's own choice, by QT_QPA_PLATFORM or -platform, always stands.
// Returns the toolkit's platform list ("xcb;wayland"), or empty to leave the
// choice to the toolkit.
std::string preferredPlatform(const std::vector<std::string>& arguments, const char* chosenPlatform,
                              const char* x11Display);

} // namespace quillora
