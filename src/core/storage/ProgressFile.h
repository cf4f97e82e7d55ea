// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/SharedState.h"
#include "state/UserStats.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillora {

class Dialogs;

// What a user has made of the game, kept from one run to the next in a file
// of its own beside their configuration file: the twenty-line configuration
// stays exactly what older versions and other systems read.
//
// The file is UTF-8 text a person can read: a first line naming the format
// and its version, then "key=value" lines. Blank lines and lines starting
// with '#' are skipped, and keys this version does not know are ignored, so
// a later one can add its own without the older ones losing the rest.
inline constexpr std::string_view kProgressSuffix = ".progreso";
inline constexpr std::string_view kProgressHeader = "Quillora Vesta progreso ";
inline constexpr int kProgressVersion = 1;
// Years of daily play stay well under this; the writer drops the oldest
// phrases of the history rather than write a file its reader would refuse.
inline constexpr std::uintmax_t kMaxProgressBytes = 2 * 1024 * 1024;

struct Progress {
    double normalPoints = 0;
    double survivalPoints = 1000;
    UserStats stats;
    int correctionsLeft = 3;
    // The played phrases joined by CR LF, as the session keeps them.
    std::string history;
    std::array<bool, kThemeFlags> selectedThemes{};
    // 0 when no thematic tour runs; then the tour's copy of the selection is
    // not kept.
    int tourPosition = 0;
    std::array<bool, kThemeFlags> tourCopy{};
    // Themes of the player's own go by their names: their numbers follow the
    // files in the "temas" folder, which may change between two runs. The
    // chosen ones, the tour's copy, the own theme the tour stands on (then
    // tourPosition holds 50, so a tour whose file has gone goes on after
    // the fifty), and the own theme played alone.
    std::vector<std::string> ownThemes;
    std::vector<std::string> tourOwnThemes;
    std::string tourOwnTheme;
    std::string lastOwnTheme;

    bool operator==(const Progress&) const = default;
};

// The progress file of a configuration file: its whole name with
// kProgressSuffix behind, so no two configuration files share one and no
// configuration file (always ".txt" when the game names it) is ever one.
std::filesystem::path progressFilePath(const std::filesystem::path& configFile);
bool isProgressFileName(const std::filesystem::path& file);

// The file's bytes.
std::string progressBytes(const Progress& progress);

enum class ProgressState { Read, Missing, Damaged, LaterVersion };
struct ParsedProgress {
    ProgressState state = ProgressState::Damaged;
    Progress progress;
};
// Read (with the values), Damaged or LaterVersion (with a fresh Progress).
ParsedProgress parseProgress(std::string_view bytes);

struct ProgressRead {
    ProgressState state = ProgressState::Missing;
    Progress progress;
    // For a file that could not be taken: the copy kept of it (empty when
    // none could be made) and what the player is told.
    std::filesystem::path copy;
    std::string notice;
};
// Reads at most kMaxProgressBytes + 1 bytes. A file that cannot be taken is
// copied beside itself (keepCopyBeside) before anything can write over it.
ProgressRead readProgressFile(const std::filesystem::path& file);
// Replaces the file in one step, through a link to its file and keeping its
// mode (replaceFile). A file there that does not read as progress is copied
// beside itself first, and stays untouched when that fails.
bool writeProgressFile(const std::filesystem::path& file, const Progress& progress);

// --- the current user ------------------------------------------------------------------
std::filesystem::path currentProgressPath(const SharedState& shared);
Progress progressOf(const SharedState& shared);
// Into the live values of the current user.
void takeProgress(SharedState& shared, const Progress& progress);
// Into a slot whose user comes in: the switch that follows makes it live.
void fillSlotProgress(const SharedState& shared, SessionSlot& slot, const Progress& progress);
// Reads the file of the user in `slot`'s record; a notice for the player is
// left in shared.progressNotice.
Progress readUserProgress(SharedState& shared, const SessionSlot& slot);

// Writes the current user's progress; silent.
bool writeProgress(SharedState& shared);
// The same, telling the player once when the file cannot be written, until
// it can again.
bool saveProgress(SharedState& shared, Dialogs& dialogs);
// Shows the notice left by a reading, once.
void tellProgressNotice(SharedState& shared, Dialogs& dialogs);

} // namespace quillora
