// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <QColor>
#include <QString>

#include <string>

namespace quillora {

// The game's colours and texts as the widgets take them: a QColor for painting and
// the text form that style sheets read.
inline QColor qc(Rgb c) {
    return QColor(c.red, c.green, c.blue);
}
// The game's UTF-8 texts as the widgets show them.
inline QString qs(const std::string& text) {
    return QString::fromStdString(text);
}
inline QString css(Rgb c) {
    return QStringLiteral("rgb(%1,%2,%3)").arg(c.red).arg(c.green).arg(c.blue);
}

} // namespace quillora
