// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AppIcon.h"

namespace quillora {

QIcon appIcon() {
    QIcon icon;
    for (const int size : {16, 22, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/icons/%1.png").arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace quillora
