// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtWeb.h"

#include <QDesktopServices>
#include <QNetworkInterface>
#include <QUrl>

namespace quillora {

bool QtWeb::networkAlive() {
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& i : interfaces) {
        const auto flags = i.flags();
        if (flags.testFlag(QNetworkInterface::IsUp) &&
            flags.testFlag(QNetworkInterface::IsRunning) &&
            !flags.testFlag(QNetworkInterface::IsLoopBack) && !i.addressEntries().isEmpty()) {
            return true;
        }
    }
    return false;
}

void QtWeb::openUrl(const std::string& url) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

} // namespace quillora
