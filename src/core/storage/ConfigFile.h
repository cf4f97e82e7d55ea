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

class Random;
struct SharedState;

inline constexpr int kConfigLines = 20;
// Nothing larger can be a configuration file: twenty short lines.
inline constexpr std::uintmax_t kMaxConfigBytes = 64 * 1024;

// Configuration files are 8-bit Windows-1252 text so they move between the
// game's platforms unchanged; in memory texts are UTF-8. Every byte has a
// character, so any file read and written back keeps its bytes.
std::string fromWindows1252(std::string_view bytes);
// Characters Windows-1252 cannot hold are written as '?'.
std::string toWindows1252(std::string_view utf8);

// The leading decimal number of a text: blanks skipped, an optional sign,
// digits and a fraction. Text without one reads as 0; the result is always
// finite.
double leadingNumber(std::string_view text);
// The same, as a 16-bit count: what the game keeps its small numbers in.
int leadingCount(std::string_view text);

// Line 18 as a colour: empty text, or a number that is no 24-bit colour,
// gives the default colour.
Rgb colourFromLine(std::string_view text, Rgb defaultColour);

// The lines of a configuration file, decoded; CR LF, LF or CR end a line.
// Nothing for a file that cannot be read, is not a regular file or is too
// large to be one.
std::optional<std::vector<std::string>> readConfigLines(const std::filesystem::path& path);
// Writes the lines, each ended by CR LF, replacing the file in one step: a
// crash leaves either the old file or the new one, never half of either.
// Creates the folder if needed.
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
void DataLoad(SharedState& shared, Random& random);
// Turns the raw line values into the options, with their bounds.
void ConfLoad(SharedState& shared);
// Writes the live options to the current session's file.
bool ConfSave(SharedState& shared);
// A fresh file for a new user, with a random theme.
bool NewConfFile(const std::filesystem::path& path, const std::string& userName, Random& random);

} // namespace quillora
