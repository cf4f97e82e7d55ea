// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

namespace quillora {

// "REINICIAR": the program starts again as a process of its own, which
// finds the font installed meanwhile, and this one ends once the event that
// asked is over.
void restartProgram(const QString& program = QCoreApplication::applicationFilePath());

} // namespace quillora
