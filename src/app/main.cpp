// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"
#include "platform/QtDialogs.h"
#include "ports/ClockRandom.h"
#include "storage/SharedState.h"
#include "windows/frmQlvs/frmQlvs.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quillora-vesta"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quillora Vesta"));

    // The standard buttons of the message boxes speak Spanish like the rest
    // of the game, whatever the desktop's language.
    QTranslator qtSpanish;
    if (qtSpanish.load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qtSpanish);
    }
    quillora::Fonts::registerEmbedded();

    quillora::SharedState shared;
    quillora::QtDialogs dialogs;
    quillora::ClockRandom random;
    quillora::frmQlvs board(shared, dialogs, random);
    board.show();
    return QApplication::exec();
}
