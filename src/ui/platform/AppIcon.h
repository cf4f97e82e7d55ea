// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace quillora {

// The game's icon at the sizes its windows show it, each drawn for its size
// rather than scaled from another: the title bars, the task bar and the
// about box use it.
QIcon appIcon();

} // namespace quillora
