// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramRestart.h"
#include "support/TempFolder.h"

#include <QFile>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillora {
namespace {

// A stand-in for the game's own executable: a program that leaves a mark
// when it starts.
TEST(ProgramRestart, StartsTheProgramAgainAndEndsTheRunningOne) {
    TempFolder folder("quillora-restart");
    const QString dir = QString::fromStdString(folder.path().string());
    const QString program = dir + QStringLiteral("/game");
    const QString mark = dir + QStringLiteral("/started");
    QFile script(program);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(QStringLiteral("#!/bin/sh\necho \"$$\" > '%1'\n").arg(mark).toUtf8());
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    QTimer::singleShot(0, [program] { restartProgram(program); });
    // Should the running program not end, the test does not hang; the
    // watch goes with the test, so it cannot end a later test's loop.
    QTimer watch;
    watch.setSingleShot(true);
    QObject::connect(&watch, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    watch.start(10000);
    EXPECT_EQ(QCoreApplication::exec(), 0) << "the running program ends";
    EXPECT_TRUE(QTest::qWaitFor([&mark] { return QFile::exists(mark); }, 10000))
        << "the program starts again";
}

} // namespace
} // namespace quillora
