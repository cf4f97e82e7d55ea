// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace quillora {

// The game's icon, drawn once at every size so no size is scaled from
// another: the windows' title bars, the task bar and the about box use it.
QIcon appIcon();

} // namespace quillora
