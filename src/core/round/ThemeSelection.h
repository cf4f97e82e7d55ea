// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillora {

struct OwnTheme;
struct SessionSlot;
struct SharedState;

// The themes a user plays alone, and the thematic tour that borrows the
// table while it walks every theme in turn.

// Every theme there is to play: the fifty built-in ones and those of the
// player's own that follow them.
int themeCount(const SharedState& shared);
// A theme's name by its number; "????" for 0, empty for a number with no
// theme.
std::string themeNameOf(const SharedState& shared, int theme);
// The number of the player's own theme of that name (51 on), or 0 when none
// has it: what a theme remembered by its name comes back as.
int ownThemeNumber(const SharedState& shared, std::string_view name);

// The player's own themes from the data folder, in place of any read
// before; what was left out of them, for the player.
std::vector<std::string> readOwnThemes(SharedState& shared);
// Adds one more file's theme after those read at the start, keeping the
// numbers of the others; false when the limit of themes is reached.
bool addOwnTheme(SharedState& shared, OwnTheme theme);
// Every name a theme of one's own may not take.
std::vector<std::string> takenThemeNames(const SharedState& shared);
// One message for all the lines left out, however many: the first few, and
// how many more.
std::string ownThemesNotice(const std::vector<std::string>& refusals);

// How many themes of the table are marked, entry 0 included.
int markedThemes(const SessionSlot& slot);
// The marked theme numbers, in number order.
std::vector<int> selectedThemeNumbers(const SessionSlot& slot);
// The current user's table is put aside in the tour copy and cleared, and
// the tour stands on theme 1.
void beginTour(SharedState& shared);
// No tour any more; the current user gets the table back as it was before
// the tour began.
void endTour(SharedState& shared);

} // namespace quillora
