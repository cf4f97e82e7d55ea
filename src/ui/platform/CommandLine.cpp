// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommandLine.h"

#include "desktop/BuildConfig.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QGuiApplication>

namespace quillora {

void nameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("quillora-vesta"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(build::kVersion));
    // A compositor matches the window to the desktop entry, and so to the
    // game's icon and name in its task bar, by this.
    QGuiApplication::setDesktopFileName(QString::fromLatin1(build::kAppId));
}

void answerTerminalQuestions(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    QCommandLineParser parser;
    // The toolkit's "-reverse" is one option, not "-r -e -v...", which would
    // read as a question for the version.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        QStringLiteral("Quillora Vesta: el juego del ahorcado, en español."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    // Options the game does not know belong to the toolkit; they are no
    // question for the terminal.
    parser.parse(arguments);
    const bool helpAll = parser.isSet(QStringLiteral("help-all"));
    if (!parser.isSet(help) && !parser.isSet(version) && !helpAll) {
        return;
    }
    // A core application needs no display, and gives the parser the
    // program's name for its usage line.
    QCoreApplication app(argc, argv);
    nameApplication();
    if (parser.isSet(version)) {
        parser.showVersion();
    }
    if (helpAll) {
        // Qt's own options are listed only by the parser's full pass.
        parser.process(app);
    }
    parser.showHelp(0);
}

} // namespace quillora
