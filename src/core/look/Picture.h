// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace quillora {

// Whether a file's name says it is a picture the board can take as its
// background: JPEG, GIF and BMP, and PNG, which every Linux desktop has.
bool isPictureName(std::string_view path);

} // namespace quillora
