// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// The help page that comes with the game, as a file URL: beside the
// program's own folder under share/, the same in the build tree as once
// installed.
std::string installedHelpPage();

} // namespace quillora
