// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The yardstick of the start-up benchmark: the least a Qt Widgets program
// can do to put a window on screen.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("bare-window"));
    window.resize(580, 264);
    window.show();
    return QApplication::exec();
}
