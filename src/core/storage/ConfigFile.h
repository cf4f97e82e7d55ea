// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillora {

class Dialogs;
class Random;
struct SharedState;
struct Settings;

inline constexpr int kConfigLines = 20;
// Twenty short lines never come near this; it is as far as the game reads
// into a file for them.
inline constexpr std::uintmax_t kMaxConfigBytes = 64 * 1024;

// Configuration files are 8-bit Windows-1252 text so they move between the
// game's platforms unchanged; in memory texts are UTF-8. Every byte has a
// character, so any file read and written back keeps its bytes.
std::string fromWindows1252(std::string_view bytes);
// Characters Windows-1252 cannot hold are written as '?'.
std::string toWindows1252(std::string_view utf8);
// Whether a character goes into a line of a configuration file as itself:
// Windows-1252 has it and it is no control character. What the player types
// into a text a file keeps (a user name) is held to this, so the name of the
// user's file and the name written in it always agree.
bool storableInLine(char32_t c);
// The text less every character storableInLine refuses.
std::string storableText(std::string_view utf8);

// The leading decimal number of a text: blanks skipped, an optional sign,
// digits and a fraction. Text without one reads as 0; the result is always
// finite.
double leadingNumber(std::string_view text);
// The same, as a 16-bit count: what the game keeps its small numbers in.
int leadingCount(std::string_view text);

// Line 18 as a colour: empty text, or a number that is no 24-bit colour,
// gives the default colour.
Rgb colourFromLine(std::string_view text, Rgb defaultColour);

// The old system ended a text file with Ctrl+Z, sometimes followed by a line
// break or padded with more of them. Such a tail is no text and is cut off.
void dropEndOfFileMark(std::string& bytes);
// The lines of the bytes, undecoded; CR LF, LF or CR end a line, and the last
// line needs no end.
std::vector<std::string_view> splitLines(std::string_view bytes);

// What the game reads of a configuration file: its first twenty lines at
// most, decoded. CR LF, LF or CR end a line, and an end-of-file mark (Ctrl+Z)
// at the end, as files of the old system may carry, is not part of the text.
struct ConfigText {
    std::vector<std::string> lines;
    // The file was read to its end: it is no larger than kMaxConfigBytes.
    bool whole = true;
    // It holds more than its twenty lines: text after them, or a part past
    // kMaxConfigBytes that was never read.
    bool beyond = false;
};
// Nothing for a file that is not a regular file, cannot be read, holds a
// control character in its lines (a picture, a program...) or is too large
// to be one and does not even begin with twenty lines.
std::optional<ConfigText> readConfigText(const std::filesystem::path& path);
// The file's first kMaxConfigBytes + 1 bytes, as they are: one byte past the
// bound tells a larger file. Nothing for a file that is not a regular file
// or cannot be read.
std::optional<std::string> readConfigBytes(const std::filesystem::path& path);
std::optional<std::vector<std::string>> readConfigLines(const std::filesystem::path& path);
// Nothing is there yet (a link to nothing counts as nothing): a file not
// written yet is no failure to read one.
bool configFileMissing(const std::filesystem::path& path);
// Writes the lines, each ended by CR LF, replacing the file in one step: a
// crash leaves either the old file or the new one, never half of either.
// A link is written through to its file, the file keeps its mode, and the
// folder is created if needed. A file holding anything the game would not
// write back (unreadable, too large, more than twenty lines) is first copied
// beside itself (keepCopyBeside), and stays as it is when that fails.
bool writeConfigLines(const std::filesystem::path& path, const std::vector<std::string>& lines);

// The file of a user in the data folder. Separators, NUL and a leading dot
// are replaced, so no name reaches outside the folder.
std::filesystem::path sessionFilePath(const std::filesystem::path& folder,
                                      std::string_view userName);

// What the board clears before reading the file: lines 1 and 2 emptied,
// the flags of lines 4-7, 9, 10, 13, 14, 16, 17, 19 and 20 off.
void clearForBoardLoad(SharedState& shared);
// Reads the current session's file into the raw line values. A missing or
// unreadable file leaves the defaults of a fresh start.
void readSessionFile(SharedState& shared, Random& random);
// Turns the raw line values into the options, with their bounds.
void applyLineValues(SharedState& shared);
// The three above in turn: the options of the current session as the board
// takes them when it opens.
void loadSessionSettings(SharedState& shared, Random& random);
// Whether the options in memory were read from the current session's file.
bool sessionSettingsLoaded(const SharedState& shared);
// Writes the live options to the current session's file, and the user's
// progress beside it (saveProgress). A failure leaves the old file whole and
// tells the player (reportSave).
bool saveSettings(SharedState& shared, Dialogs& dialogs);
// The same save, telling nobody: for a window that tells the player of a
// failure of the options in its own words.
bool writeSettings(SharedState& shared);
// The options alone.
bool writeOptions(SharedState& shared);
// Hands back `saved`, telling the player first when a save of the file at
// `path` failed and they have not been told of it yet.
bool reportSave(SharedState& shared, Dialogs& dialogs, const std::string& path, bool saved);
// The twenty lines a set of options is written as, line 9 as the option
// stands.
std::vector<std::string> settingsLines(const Settings& settings);
// A fresh file for a new user, with a random theme.
bool writeNewUserFile(const std::filesystem::path& path, const std::string& userName,
                      Random& random);

} // namespace quillora
