// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/HelpPage.h"

#include <QCoreApplication>
#include <QDir>
#include <QUrl>

namespace quillora {

std::string installedHelpPage() {
    const QString page = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                         QStringLiteral("/../share/quillora-vesta/ayuda.html"));
    return QUrl::fromLocalFile(page).toString(QUrl::FullyEncoded).toStdString();
}

} // namespace quillora
