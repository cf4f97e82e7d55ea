// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The build lists the tests by running this binary, display or not.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    quillora::Fonts::findLookAlikes();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
