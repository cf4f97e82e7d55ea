// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Settings.h"
#include "windows/appearance/Colour.h"

namespace quillora {

// What every window of the game reads and writes: the options of the current
// session, the palette and the live values of the current user. One object,
// made by main and handed to the windows.
struct SharedState {
    Settings settings;
    Palette palette;
    // Strike corrections the current user has left; three after start-up.
    int correctionsLeft = 3;
    // The phrase is typed by a friend rather than drawn from the catalogue.
    bool multiplayer = false;
};

} // namespace quillora
