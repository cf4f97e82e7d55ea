// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommandLine.h"

#include "desktop/BuildConfig.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace quillora {

void nameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("quillora-vesta"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(build::kVersion));
    // A compositor matches the window to the desktop entry, and so to the
    // game's icon and name in its task bar, by this.
    QGuiApplication::setDesktopFileName(QString::fromLatin1(build::kAppId));
}

namespace {

// The game's own questions; the toolkit's options are not listed but left to
// it.
void describe(QCommandLineParser& parser) {
    // The toolkit's "-reverse" is one option, not "-r -e -v...", which would
    // read as a question for the version.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Quillora Vesta: el juego del ahorcado, en español."));
    // Qt's own help and version options would describe themselves in
    // English.
    parser.addOption(QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Muestra esta ayuda y termina.")));
    parser.addOption(QCommandLineOption({QStringLiteral("v"), QStringLiteral("version")},
                                        QStringLiteral("Muestra la versión y termina.")));
}

} // namespace

void speakSpanish(QTranslator& qtSpanish) {
    if (qtSpanish.load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&qtSpanish);
    }
}

void answerTerminalQuestions(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    QCommandLineParser question;
    describe(question);
    // Options the game does not know belong to the toolkit; they are no
    // question for the terminal.
    question.parse(arguments);
    const bool version = question.isSet(QStringLiteral("version"));
    if (!version && !question.isSet(QStringLiteral("help"))) {
        return;
    }
    // A core application needs no display; it gives the parser the
    // program's name for its usage line, and the answer the game's Spanish.
    QCoreApplication app(argc, argv);
    nameApplication();
    QTranslator qtSpanish;
    speakSpanish(qtSpanish);
    QCommandLineParser answer;
    describe(answer);
    answer.parse(arguments);
    if (version) {
        answer.showVersion();
    }
    answer.showHelp(0);
}

} // namespace quillora
