// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/DisplayServer.h"
#include "desktop/WebLookUp.h"
#include "look/Twips.h"
#include "platform/AlsaSoundPlayer.h"
#include "platform/AppIcon.h"
#include "platform/CommandLine.h"
#include "platform/Fonts.h"
#include "platform/HelpPage.h"
#include "platform/ProgramRestart.h"
#include "platform/QtDialogs.h"
#include "platform/QtWeb.h"
#include "platform/ScreenKeeper.h"
#include "platform/ScreenReaderAnnouncer.h"
#include "platform/SystemNetworkCheck.h"
#include "ports/ClockRandom.h"
#include "round/ThemeSelection.h"
#include "state/SharedState.h"
#include "windows/board/BoardWindow.h"
#include "windows/menu/MainMenu.h"
#include "windows/options/OptionsWindow.h"
#include "windows/start/StartScreen.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QStandardPaths>
#include <QTranslator>

#include <QTimer>

#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

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
        m_shared.settings.userName = "Quillora VS";
        m_ownThemeRefusals = quillora::readOwnThemes(m_shared);
    }

    // The start screen, at program start and after every restart.
    void start() {
        auto screen = std::make_unique<quillora::StartScreen>(m_shared, m_lookUp,
                                                              quillora::Fonts::displayAvailable());
        screen->onMenu = [this] { later([this] { openMenu(std::nullopt); }); };
        screen->onRestart = [] { quillora::restartProgram(); };
        screen->onClose = [] { QCoreApplication::quit(); };
        centre(*screen);
        screen->show();
        replace(std::move(screen));
    }

private:
    // The main menu: centred at start, where the board was when the board
    // goes back to it.
    void openMenu(std::optional<QPoint> boardCentre) {
        auto menu = newMenu();
        if (boardCentre) {
            // A window not shown yet has no frame: the one it replaces had the
            // same, so trips between the two leave both where they were.
            const QSize outer = menu->size() + m_frame;
            menu->move(*boardCentre - QPoint(outer.width() / 2, outer.height() / 2));
        } else {
            centre(*menu);
        }
        menu->show();
        replace(std::move(menu));
        // What was left out of the player's own themes is told once, over
        // the first menu: the start screen before it stays above every box.
        if (!m_ownThemeRefusals.empty()) {
            later([this, refusals = std::move(m_ownThemeRefusals)] {
                m_dialogs.information(quillora::ownThemesNotice(refusals));
            });
            m_ownThemeRefusals.clear();
        }
    }

    std::unique_ptr<quillora::MainMenu> newMenu() {
        auto menu = std::make_unique<quillora::MainMenu>(m_shared, m_dialogs);
        menu->onPlay = [this] { later([this] { openBoard(); }); };
        menu->onQuit = [] { QCoreApplication::quit(); };
        menu->onOptions = [this] { later([this] { openOptions(); }); };
        return menu;
    }

    // The options open where the menu has swollen to their size.
    void openOptions() {
        auto options = std::make_unique<quillora::OptionsWindow>(m_shared, m_dialogs, m_random);
        options->onMenu = [this, window = options.get()] {
            const QPoint at = window->pos();
            const int width = window->width() * quillora::kTwipsPerPixel;
            const QString caption = window->windowTitle();
            later([this, at, width, caption] { openMenuInPlaceOf(at, width, caption); });
        };
        if (m_window) {
            options->move(m_window->pos());
        } else {
            centre(*options);
        }
        options->show();
        replace(std::move(options));
    }

    // Back from the options, the menu takes their window's place, width and
    // caption, at a height of its own.
    void openMenuInPlaceOf(QPoint at, int width, const QString& caption) {
        auto menu = newMenu();
        menu->takePlaceOf(at, width, caption);
        menu->show();
        replace(std::move(menu));
    }

    // A board over the menu, or, when a switch of survival mode reopens it,
    // where the last one stood.
    void openBoard(std::optional<QPoint> remembered = std::nullopt) {
        const QRect menuFrame = m_window ? m_window->frameGeometry() : QRect();
        const QPoint menuCentre =
            menuFrame.topLeft() + QPoint(menuFrame.width() / 2, menuFrame.height() / 2);
        auto board = std::make_unique<quillora::BoardWindow>(m_shared, m_dialogs, m_announcer,
                                                             m_random, m_sounds, m_lookUp);
        board->onRestart = [this] { later([this] { start(); }); };
        board->onClose = [] { QCoreApplication::quit(); };
        board->onMenu = [this, window = board.get()] {
            const QPoint at = window->menuCentre();
            later([this, at] { openMenu(at); });
        };
        board->onReopen = [this](QPoint at) { later([this, at] { openBoard(at); }); };
        if (remembered) {
            board->move(*remembered);
        } else if (m_window) {
            board->placeOver(menuCentre);
        } else {
            centre(*board);
        }
        board->show();
        replace(std::move(board));
    }

    // Only one of the game's windows shows at a time. The one going away may
    // still be on the stack of the event that asked for the change, so it is
    // hidden now and deleted later.
    void replace(std::unique_ptr<QWidget> next) {
        if (m_window) {
            m_frame = m_window->frameGeometry().size() - m_window->size();
            m_window->hide();
            m_window.release()->deleteLater();
        }
        m_window = std::move(next);
        if (m_window) {
            quillora::ScreenKeeper::watch(*m_window);
        }
    }
    static void later(std::function<void()> step) { QTimer::singleShot(0, std::move(step)); }
    static void centre(QWidget& window) {
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->availableGeometry();
            window.move(area.center() - QPoint(window.width() / 2, window.height() / 2));
        }
    }

    quillora::SharedState m_shared;
    quillora::QtDialogs m_dialogs;
    quillora::ScreenReaderAnnouncer m_announcer;
    quillora::ClockRandom m_random;
    quillora::SystemNetworkCheck m_network;
    quillora::QtWeb m_web;
    quillora::WebLookUp m_lookUp{m_network, m_web, m_dialogs,
                                 quillora::Endpoints::fromBuild(quillora::installedHelpPage())};
    quillora::AlsaSoundPlayer m_sounds;
    std::unique_ptr<QWidget> m_window;
    // What the window system's frame adds to a window of the game.
    QSize m_frame;
    std::vector<std::string> m_ownThemeRefusals;
};

} // namespace

int main(int argc, char** argv) {
    quillora::answerTerminalQuestions(argc, argv);

    // The toolkit reads its platform from the command line it is given, so
    // the choice reaches no program the game starts (a browser, the game
    // itself on a restart), which makes its own.
    std::vector<char*> arguments(argv, argv + argc);
    std::string platform =
        quillora::preferredPlatform(std::vector<std::string>(argv, argv + argc),
                                    std::getenv("QT_QPA_PLATFORM"), std::getenv("DISPLAY"));
    std::string platformOption = "-platform";
    if (!platform.empty()) {
        arguments.insert(arguments.empty() ? arguments.end() : arguments.begin() + 1,
                         {platformOption.data(), platform.data()});
    }
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    std::thread systemFonts = quillora::Fonts::readSystemFontsAhead();
    QApplication app(count, arguments.data());
    systemFonts.join();
    quillora::nameApplication();
    quillora::Fonts::findLookAlikes();

    Game game;
    game.start();
    // Neither the icon, whose pictures are decoded for the window system as
    // it is set, nor Qt's Spanish for its message boxes' buttons is wanted
    // before the start screen is up, so both wait until then: the screen,
    // which has no title bar, takes the icon a moment after it shows.
    QTranslator qtSpanish;
    QTimer::singleShot(0, [&qtSpanish] {
        QApplication::setWindowIcon(quillora::appIcon());
        quillora::speakSpanish(qtSpanish);
    });
    return QApplication::exec();
}
