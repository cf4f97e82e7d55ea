// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ScreenReaderAnnouncer.h"
#include "support/SpokenEvents.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

using Urgency = Announcer::Urgency;

TEST(ScreenReaderAnnouncer, SaysTheNewestPoliteTextOnceAsANotificationInAStatusBar) {
    SpokenEvents spoken;
    ScreenReaderAnnouncer& announcer = spoken.announcer();
    announcer.announce("A: 2 letras. 2 de 9.", Urgency::Polite);
    announcer.announce("E: fallo, strike 1 de 8.", Urgency::Polite);
    EXPECT_TRUE(spoken.said().isEmpty()) << "nothing is said on the key's own turn";
    EXPECT_EQ(announcer.timer().interval(), ScreenReaderAnnouncer::kPoliteWaitMs);

    announcer.tick();
    EXPECT_EQ(spoken.said(), QStringList{QStringLiteral("E: fallo, strike 1 de 8.")});
    // A screen reader reads the text from the notification, and files it
    // under a status bar, which keeps it from naming the role every time.
    QAccessibleInterface* notice = QAccessible::queryAccessibleInterface(announcer.notification());
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->role(), QAccessible::Notification);
    EXPECT_EQ(notice->text(QAccessible::Name), QStringLiteral("E: fallo, strike 1 de 8."));
    ASSERT_NE(notice->parent(), nullptr);
    EXPECT_EQ(notice->parent()->role(), QAccessible::StatusBar);
    EXPECT_EQ(notice->parent()->child(0), notice);

    announcer.tick();
    EXPECT_EQ(spoken.said().size(), 1) << "a text is said once";
}

TEST(ScreenReaderAnnouncer, AnUrgentTextCutsInAheadOfAnyPoliteOne) {
    SpokenEvents spoken;
    ScreenReaderAnnouncer& announcer = spoken.announcer();
    announcer.announce("S: 1 letra. 14 de 14.", Urgency::Polite);
    announcer.announce("¡Victoria! LOS TRES CERDITOS.", Urgency::Urgent);
    EXPECT_EQ(announcer.timer().interval(), 0);
    announcer.announce("Más 800 puntos.", Urgency::Urgent);
    announcer.announce("Tema: Animales.", Urgency::Polite);
    EXPECT_EQ(announcer.waiting(),
              QStringLiteral("¡Victoria! LOS TRES CERDITOS. Más 800 puntos. Tema: Animales."));
    announcer.tick();
    EXPECT_EQ(spoken.said().size(), 1);
    EXPECT_TRUE(announcer.waiting().isEmpty());
}

TEST(ScreenReaderAnnouncer, DoesNothingWhileNoScreenReaderListens) {
    QStringList sent;
    bool listening = false;
    ScreenReaderAnnouncer announcer(
        [&listening] { return listening; },
        [&sent](QAccessibleEvent* event) { sent << QString::number(event->type()); });
    announcer.announce("A: 2 letras.", Urgency::Urgent);
    EXPECT_FALSE(announcer.timer().isActive());
    EXPECT_TRUE(announcer.waiting().isEmpty());

    // A reader that goes away before the text is due hears nothing either.
    listening = true;
    announcer.announce("E: fallo.", Urgency::Polite);
    listening = false;
    announcer.tick();
    EXPECT_TRUE(sent.isEmpty());
}

} // namespace
} // namespace quillora
