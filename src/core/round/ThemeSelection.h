// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace quillora {

struct SessionSlot;
struct SharedState;

// The themes a user plays alone, and the thematic tour that borrows the
// table while it walks every theme in turn.

// How many themes of the table are marked, entry 0 included.
int markedThemes(const SessionSlot& slot);
// The marked theme numbers 1..50, in number order.
std::vector<int> selectedThemeNumbers(const SessionSlot& slot);
// The current user's table is put aside in the tour copy and cleared, and
// the tour stands on theme 1.
void beginTour(SharedState& shared);
// No tour any more; the current user gets the table back as it was before
// the tour began.
void endTour(SharedState& shared);

} // namespace quillora
