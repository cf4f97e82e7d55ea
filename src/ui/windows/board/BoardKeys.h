// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/board/BoardModel.h"

class QKeyEvent;

namespace quillora {

// The keys of the board's shortcut table, as the model knows them; Other
// for every key that is not in it.
BoardModel::WindowKey shortcutOf(const QKeyEvent& event);

// The spacing form of a dead key, which the model composes with the next
// character; 0 for any other key.
char32_t deadAccent(int key);

} // namespace quillora
