// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtNetworkCheck.h"

#include <QNetworkInformation>
#include <QNetworkInterface>

namespace quillora {

namespace {

bool interfaceUp() {
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

// Loaded once for the whole run; the backend then follows the network by
// itself.
QNetworkInformation* systemInformation() {
    static QNetworkInformation* const information = []() -> QNetworkInformation* {
        if (!QNetworkInformation::loadBackendByFeatures(
                QNetworkInformation::Feature::Reachability)) {
            return nullptr;
        }
        return QNetworkInformation::instance();
    }();
    return information;
}

} // namespace

bool QtNetworkCheck::networkAlive() {
    using Reachability = QNetworkInformation::Reachability;
    if (const QNetworkInformation* information = systemInformation()) {
        switch (information->reachability()) {
        case Reachability::Online:
        case Reachability::Site:
            return true;
        case Reachability::Disconnected:
        case Reachability::Local:
            return false;
        case Reachability::Unknown:
            // A backend without a network service behind it knows nothing.
            break;
        }
    }
    return interfaceUp();
}

} // namespace quillora
