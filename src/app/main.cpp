// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"
#include "platform/QtDialogs.h"
#include "ports/ClockRandom.h"
#include "storage/SharedState.h"
#include "windows/frmInicio/InicioModel.h"
#include "windows/frmQlvs/frmQlvs.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <memory>

namespace {

// The program's state and its one board window. A restart puts the start
// values back and opens a fresh board for the current user.
class Game {
public:
    Game() {
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
            QStringLiteral("/quillora-vesta");
        m_shared.dataFolder = QDir(folder).absolutePath().toStdString();
        m_shared.settings.nombre = "Quillora VS";
    }

    void start() {
        quillora::InicioLoad(m_shared);
        auto board = std::make_unique<quillora::frmQlvs>(m_shared, m_dialogs, m_random);
        board->onRestart = [this] { restart(); };
        board->show();
        m_board = std::move(board);
    }

private:
    void restart() {
        // The old board is still on the stack of the event that asked for
        // the restart, so it is deleted later.
        m_board.release()->deleteLater();
        start();
    }

    quillora::SharedState m_shared;
    quillora::QtDialogs m_dialogs;
    quillora::ClockRandom m_random;
    std::unique_ptr<quillora::frmQlvs> m_board;
};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quillora-vesta"));

    // The standard buttons of the message boxes speak Spanish like the rest
    // of the game, whatever the desktop's language.
    QTranslator qtSpanish;
    if (qtSpanish.load(QLocale(QLocale::Spanish), QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&qtSpanish);
    }
    quillora::Fonts::registerEmbedded();

    Game game;
    game.start();
    return QApplication::exec();
}
