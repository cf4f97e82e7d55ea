// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string_view>

namespace quillora {

// Whether a file's name says it is a picture the board can take as its
// background: JPEG, GIF and BMP, and PNG, which every Linux desktop has.
bool isPictureName(std::string_view path);

// Whether a file may be handed to the picture decoder at all: a regular file
// (a link is followed), and, for the formats whose decoder would paint a cut
// file grey rather than refuse it, one that reaches its end: a JPEG up to its
// end-of-image marker, an uncompressed BMP as long as its rows. A pipe, a
// device, a folder or a link to nowhere is no picture, and reading one could
// wait for ever.
bool pictureFileWhole(const std::filesystem::path& path);

} // namespace quillora
