// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

struct SharedState;

// What the start of the program sets before the first board opens, and again
// at every restart: the main session's file, the palette, and the first-run
// defaults of the current user unless a session switch asked to keep them.
void InicioLoad(SharedState& shared);

} // namespace quillora
