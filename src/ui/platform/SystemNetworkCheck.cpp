// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemNetworkCheck.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <ifaddrs.h>
#include <net/if.h>
#include <sys/socket.h>

#include <optional>

namespace quillora {

namespace {

// NetworkManager's overall state: 70 reaches the internet, 60 a site of its
// own, 50 no further than this machine, 10 to 40 nothing; 0 it cannot tell.
// This is all a look-up needs from Qt's network module, which would cost
// every start of the game a few milliseconds of loading for one question
// asked, if ever, long after.
std::optional<bool> managerSaysOnline() {
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected()) {
        return std::nullopt;
    }
    QDBusMessage ask = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.NetworkManager"),
        QStringLiteral("/org/freedesktop/NetworkManager"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    ask << QStringLiteral("org.freedesktop.NetworkManager") << QStringLiteral("State");
    constexpr int kPatienceMs = 500;
    const QDBusMessage reply = bus.call(ask, QDBus::Block, kPatienceMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        return std::nullopt;
    }
    bool read = false;
    const uint state = reply.arguments().front().value<QDBusVariant>().variant().toUInt(&read);
    if (!read || state == 0) {
        return std::nullopt;
    }
    return state >= 60;
}

bool interfaceUp() {
    ifaddrs* list = nullptr;
    if (getifaddrs(&list) != 0) {
        return false;
    }
    bool up = false;
    for (const ifaddrs* i = list; i && !up; i = i->ifa_next) {
        const unsigned flags = i->ifa_flags;
        const bool hasAddress = i->ifa_addr && (i->ifa_addr->sa_family == AF_INET ||
                                                i->ifa_addr->sa_family == AF_INET6);
        up = hasAddress && (flags & IFF_UP) && (flags & IFF_RUNNING) && !(flags & IFF_LOOPBACK);
    }
    freeifaddrs(list);
    return up;
}

} // namespace

bool SystemNetworkCheck::networkAlive() {
    if (const std::optional<bool> online = managerSaysOnline()) {
        return *online;
    }
    return interfaceUp();
}

} // namespace quillora
