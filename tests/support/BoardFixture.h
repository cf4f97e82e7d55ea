// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/start/StartScreenModel.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/AgainLabels.h"
#include "windows/board/AnswerPanel.h"
#include "windows/board/AutoMarker.h"
#include "windows/board/BackgroundView.h"
#include "windows/board/BoardControls.h"
#include "windows/board/BoardWindow.h"
#include "windows/board/CountdownLabel.h"
#include "windows/board/PlayPanel.h"
#include "windows/board/ScorePanel.h"
#include "windows/board/SmallPlayButton.h"
#include "windows/board/StrikeStrip.h"
#include "windows/board/ThemeBox.h"
#include "windows/theme/ThemeWindow.h"
#include "words/ThemeCatalogue.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace quillora {

namespace fs = std::filesystem;

// A board window on a fresh data folder, and the ways a player drives it.

class BoardWindowTest : public ::testing::Test {
protected:
    BoardWindowTest() {
        shared.dataFolder = folder;
        loadAtStart(shared);
    }
    void SetUp() override { SetUpBoard(); }
    // A fresh board for the shared state as it stands.
    void SetUpBoard() {
        // No file yet: the theme is drawn, and a 0 reads as theme 1.
        random.queue({0.0});
        window = std::make_unique<BoardWindow>(shared, dialogs, announcer, random, sounds,
                                               desktop.lookUp);
        window->show();
        window->activateWindow();
        window->setFocus();
    }
    // A fresh board that reads the options as they now stand from its file.
    void SetUpBoardFromFile() {
        ASSERT_TRUE(saveSettings(shared, dialogs));
        SetUpBoard();
    }
    void TearDown() override { window.reset(); }

    // Theme 1, phrase 2 ("VACA"), through the theme window.
    void startVaca() {
        random.queue({0.05});
        QTest::keyClick(window.get(), Qt::Key_Return);
        ASSERT_NE(window->themeWindow(), nullptr);
        EXPECT_EQ(window->themeWindow()->themeLabel()->text(),
                  qs(std::string(ThemeCatalogue::storedThemeName(1))));
        QTest::mouseClick(window->themeWindow()->acceptButton(), Qt::LeftButton);
    }
    void type(const QString& text, QWidget* target = nullptr) {
        for (const QChar ch : text) {
            QTest::sendKeyEvent(QTest::Click, target ? target : window.get(), Qt::Key_unknown,
                                QString(ch), {});
        }
    }
    void openKeyboard() {
        while (window->model().slide().opening()) {
            window->model().slide().tickOpen();
        }
        window->sync();
    }
    // The entry of a menu that reads `text`.
    static QAction* entryOf(QMenu* menu, const QString& text) {
        for (QAction* action : menu->actions()) {
            if (action->text() == text) {
                return action;
            }
        }
        ADD_FAILURE() << "no " << text.toStdString() << " in the menu";
        return nullptr;
    }
    // An entry of the board's popup menu as it is built now.
    QAction* popupEntry(const QString& text) { return entryOf(window->buildPopup(), text); }
    // A file dragged over the board, and dropped there if the board takes it.
    bool drop(const fs::path& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window.get(), &event);
        return true;
    }
    // Windows closed with WA_DeleteOnClose are gone once their deletion runs.
    static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    QString strike(int slot) const { return window->controls().strikes->markText(slot); }

    TempFolder temp{"quillora-board"};
    const fs::path& folder = temp.path();
    SharedState shared;
    ScriptedDialogs dialogs;
    RecordingAnnouncer announcer;
    QueuedRandom random;
    RecordingSounds sounds;
    FakeDesktop desktop{dialogs};
    std::unique_ptr<BoardWindow> window;
};

} // namespace quillora
