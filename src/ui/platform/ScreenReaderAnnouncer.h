// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Announcer.h"

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace quillora {

// Hands what the game announces to the screen reader. Orca 43 (Debian 12's)
// listens to no announcement signal, but it speaks a notification the moment
// one shows, and leaves out the word "notification" when it sits in a status
// bar. So the announcer keeps an unseen status bar holding one notification,
// gives the notification the text and tells that it showed. A Qt with its own
// announcement event (6.8 on) sends that instead.
//
// Orca speaks each notification at once, over whatever it was saying, so on
// this stack a polite text cannot wait for the speech in progress: its
// politeness is the short wait below, in which a newer text replaces it.
//
// Nothing happens at all while no screen reader listens, and the work waits
// for the key that caused it to be painted.
class ScreenReaderAnnouncer final : public QObject, public Announcer {
public:
    // How long a polite text waits, so that a newer one takes its place and
    // the board shows the key before anything is said. An urgent text goes
    // out on the next turn of the event loop.
    static constexpr int kPoliteWaitMs = 40;

    using Send = std::function<void(QAccessibleEvent*)>;

    // `listening` tells whether a screen reader is there to hear, `send`
    // hands it an event: by default Qt's own, which drop every event while
    // no screen reader has asked for the game.
    explicit ScreenReaderAnnouncer(std::function<bool()> listening = &QAccessible::isActive,
                                   Send send = &QAccessible::updateAccessibility,
                                   QObject* parent = nullptr);
    ~ScreenReaderAnnouncer() override;

    void announce(const std::string& text, Urgency urgency) override;

    // The wait's timeout: says what is waiting.
    void tick();
    const QTimer& timer() const { return m_wait; }
    // What will be said next: urgent texts first, then the newest polite one.
    QString waiting() const;
    // The notification the announcement events come from.
    QObject* notification() const { return m_notification; }

private:
    std::function<bool()> m_listening;
    Send m_send;
    QTimer m_wait;
    QString m_urgent;
    QString m_polite;
    QString m_said;
    QObject* m_statusBar;
    QObject* m_notification;
};

} // namespace quillora
