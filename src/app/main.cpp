// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    return 0;
}
