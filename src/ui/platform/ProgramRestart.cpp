// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramRestart.h"

#include <QProcess>

namespace quillora {

void restartProgram(const QString& program) {
    QProcess::startDetached(program, {});
    QCoreApplication::exit(0);
}

} // namespace quillora
