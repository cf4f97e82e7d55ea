// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardAppearance.h"

namespace quillora {

void BoardAppearance::dropPicture(const std::string& path) {
    if (m_pictureTaker) {
        m_pictureTaker(path);
    } else {
        m_picture = path;
    }
}

} // namespace quillora
