// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AppIcon.h"

namespace quillora {

QIcon appIcon() {
    QIcon icon;
    // Up to the about box's size: a window hands every size it has to the
    // window system as it opens, and the large ones would slow that down.
    for (const int size : {16, 22, 32, 48, 64}) {
        icon.addFile(QStringLiteral(":/icons/%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace quillora
