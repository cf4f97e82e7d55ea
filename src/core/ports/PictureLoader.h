// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// The design window's preview. Decoding a picture is the display's business;
// the rules only need to know whether a file could be shown, and a picture
// that cannot must leave what is shown as it was.
class PictureLoader {
public:
    virtual ~PictureLoader() = default;
    // Reads the picture into the preview, at its real size or stretched as
    // the board will show it; false, with the preview untouched, when the
    // file is no picture the game can show.
    virtual bool load(const std::string& path, bool realSize) = 0;
};

} // namespace quillora
