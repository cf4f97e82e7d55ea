// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

class Dialogs;
struct SharedState;

// Configuration files of earlier installations, kept in the data folder
// beside the main one.
inline constexpr const char* kVersion5ConfigName = "Quillora5.txt";
inline constexpr const char* kVersion4ConfigName = "Quillora4.txt";

enum class ImportOutcome {
    // No question: the main file is there, nothing old to copy, or the
    // player already said No in this run.
    NotOffered,
    Declined,
    Copied,
    // The player agreed but the main file could not be written.
    Failed,
};

// The offer made each time the main menu shows, while the main session has
// no file of its own yet: first the version 5 file, and only when there is
// none the version 4 one. A No holds for both until the program ends.
ImportOutcome offerOldConfig(SharedState& shared, Dialogs& dialogs);

} // namespace quillora
