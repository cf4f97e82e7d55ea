// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Sessions.h"

#include "support/LoadedSession.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

namespace quillora {
namespace {

namespace fs = std::filesystem;

// A session file as the game writes it, with `name` on line 15.
std::string sessionFileNamed(const std::string& name, const std::string& end = "") {
    return "\r\n\r\n1\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n5\r\n1\r\n0\r\n0\r\n" + name +
           "\r\n0\r\n0\r\n15759390\r\n0\r\n0\r\n" + end;
}

class SessionsTest : public ::testing::Test, protected LoadedSession {
protected:
    SessionsTest() : LoadedSession("quillora-sessions") {
        shared.currentSession().displayName = "Quillora VS";
    }

    std::string add(const std::string& typed = "Nombre") {
        random.queue({0.5});
        std::string shown;
        EXPECT_TRUE(sessions.add(typed, false, shown));
        return shown;
    }
    void expectTold(const std::string& text, Dialogs::Icon icon) const {
        ASSERT_FALSE(dialogs.shown.empty());
        EXPECT_EQ(dialogs.shown.back().text, text);
        EXPECT_EQ(dialogs.shown.back().icon, icon);
    }

    QueuedRandom random;
    Sessions sessions{shared, dialogs, random};
};

TEST_F(SessionsTest, AddingWithoutANameUsesTheSlotNumberAndWritesAFreshFile) {
    EXPECT_EQ(add(), "Usuario 2");
    EXPECT_EQ(shared.currentSlot, 1);
    const fs::path file = folder / "Usuario 2.txt";
    EXPECT_EQ(shared.currentSession().filePath, file.string());
    EXPECT_EQ(shared.currentSession().displayName, "Usuario 2");
    EXPECT_EQ(shared.survivalPoints, 1000);
    EXPECT_EQ(shared.correctionsLeft, 3);
    EXPECT_TRUE(shared.sessionLoaded);
    EXPECT_NE(slurp(file).find("\r\nUsuario 2\r\n"), std::string::npos);

    // A name that looks like a path still makes a file in the data folder.
    add("../fuera");
    EXPECT_EQ(fs::path(shared.currentSession().filePath).parent_path(), folder);
    EXPECT_TRUE(fs::exists(shared.currentSession().filePath));
}

// Beto played here before: his file is his session, byte for byte.
TEST_F(SessionsTest, AddingAUserWhoseFileIsThereTakesThatFile) {
    const fs::path file = folder / "Beto.txt";
    const std::string own = sessionFileNamed("Beto");
    std::ofstream(file, std::ios::binary) << own;
    std::string shown;
    ASSERT_TRUE(sessions.add("Beto", false, shown));
    EXPECT_EQ(slurp(file), own);
    expectTold("Beto ya tiene una configuración guardada, se usará esa.",
               Dialogs::Icon::Information);
    EXPECT_EQ(shared.currentSession().filePath, file.string());
    EXPECT_EQ(shared.currentSession().displayName, "Beto");
}

TEST_F(SessionsTest, SwitchingBackRestoresWhatTheUserLeftAndTheLockStaysWithItsUser) {
    const auto left = [this] {
        return std::tuple{shared.normalPoints, shared.survivalPoints,  shared.settings.theme,
                          shared.history,      shared.correctionsLeft, shared.locked,
                          shared.key};
    };
    shared.normalPoints = 450;
    shared.survivalPoints = 300;
    shared.settings.theme = 7;
    shared.history = "CASA\r\nPERRO";
    shared.correctionsLeft = 1;
    const auto first = left();
    add("Ana");
    shared.normalPoints = -600;
    shared.correctionsLeft = 2;
    shared.key = "clave";
    shared.locked = true;
    const auto second = left();

    ASSERT_TRUE(sessions.switchTo(0, false));
    EXPECT_TRUE(shared.skipStartDefaults);
    EXPECT_EQ(left(), first);
    ASSERT_TRUE(sessions.switchTo(1, false));
    EXPECT_EQ(left(), second);
}

TEST_F(SessionsTest, ChangesOfUserAreRefusedWithManyErrorsOrTheSameUser) {
    std::string shown;
    EXPECT_FALSE(sessions.add("Ana", true, shown));
    EXPECT_FALSE(sessions.addFromFiles({(folder / "x.txt").string()}, true));
    EXPECT_FALSE(sessions.switchTo(0, true));
    EXPECT_EQ(dialogs.shown.size(), 3U);
    for (const auto& box : dialogs.shown) {
        EXPECT_EQ(box.text, "No se puede cambiar de sesión, termine la partida.");
        EXPECT_EQ(box.icon, Dialogs::Icon::Exclamation);
    }
    EXPECT_FALSE(sessions.switchTo(0, false));
    EXPECT_EQ(dialogs.shown.back().text, "Es el usuario actual, seleccione otro.");
    EXPECT_EQ(shared.currentSlot, 0);
    EXPECT_FALSE(shared.sessions[1].record.inUse());
}

TEST_F(SessionsTest, ThreeAddedSessionsAtMostAndDeletingMovesLaterOnesDown) {
    add("Ana");
    add("Beto");
    add("Ciro");
    std::string shown;
    EXPECT_FALSE(sessions.add("Dora", false, shown));
    EXPECT_EQ(shared.currentSlot, 3);
    expectTold("No se pueden agregar más sesiones.", Dialogs::Icon::Error);
    EXPECT_FALSE(fs::exists(folder / "Dora.txt"));

    ASSERT_TRUE(sessions.switchTo(1, false));
    ASSERT_TRUE(sessions.deleteCurrent());
    EXPECT_EQ(shared.currentSlot, 0);
    EXPECT_EQ(shared.sessions[1].record.displayName, "Beto");
    EXPECT_EQ(shared.sessions[2].record.displayName, "Ciro");
    EXPECT_FALSE(shared.sessions[3].record.inUse());
    EXPECT_TRUE(fs::exists(folder / "Ana.txt")) << "the user's file stays on disk";

    // The last slot can go as well.
    ASSERT_TRUE(sessions.switchTo(2, false));
    ASSERT_TRUE(sessions.deleteCurrent());
    EXPECT_FALSE(shared.sessions[2].record.inUse());
    EXPECT_EQ(shared.sessions[1].record.displayName, "Beto");
    EXPECT_FALSE(sessions.deleteCurrent()) << "the main session is never deleted";
}

TEST_F(SessionsTest, DroppedFilesBecomeSessionsAndOtherFilesAreLeftAlone) {
    const fs::path named = folder / "ana.txt";
    const fs::path unnamed = folder / "vacio.txt";
    const fs::path picture = folder / "foto.jpg";
    const std::string pictureBytes("\xFF\xD8\xFF\xE0\0\x10JFIF\0", 11);
    std::ofstream(named, std::ios::binary) << sessionFileNamed("Ana");
    std::ofstream(unnamed, std::ios::binary) << "1\r\n2\r\n";
    std::ofstream(picture, std::ios::binary) << pictureBytes;

    random.queue({0.5});
    ASSERT_TRUE(sessions.addFromFiles({picture.string(), named.string(),
                                       (folder / "no-existe.txt").string(), folder.string(),
                                       unnamed.string()},
                                      false));
    EXPECT_EQ(shared.sessions[1].record.displayName, "Ana");
    EXPECT_EQ(shared.sessions[1].record.filePath, named.string());
    EXPECT_EQ(shared.sessions[2].record.displayName, "Usuario 3");
    EXPECT_NE(slurp(unnamed).find("Usuario 3"), std::string::npos)
        << "a file without a name gets a fresh one";
    EXPECT_FALSE(shared.sessions[3].record.inUse());
    EXPECT_EQ(shared.currentSlot, 2);
    EXPECT_EQ(slurp(picture), pictureBytes);
}

TEST_F(SessionsTest, ADroppedFileEndingWithTheOldEndOfFileMarkBecomesASession) {
    const fs::path dropped = folder / "de-windows.txt";
    std::ofstream(dropped, std::ios::binary) << sessionFileNamed("Mar\xED"
                                                                 "a",
                                                                 "\x1A");
    ASSERT_TRUE(sessions.addFromFiles({dropped.string()}, false));
    EXPECT_EQ(shared.currentSession().displayName, "María");
    EXPECT_EQ(shared.currentSession().filePath, dropped.string());
}

TEST_F(SessionsTest, ANameWhoseFileCannotExistIsRefused) {
    // 251 bytes and ".txt" make the longest file name there can be.
    const std::string longest(251, 'a');
    EXPECT_EQ(add(longest), longest);
    EXPECT_TRUE(fs::exists(folder / (longest + ".txt")));
    ASSERT_TRUE(sessions.deleteCurrent());

    std::string enyes;
    for (int i = 0; i < 126; ++i) {
        enyes += "ñ"; // two bytes in a file name, one in the file
    }
    for (const std::string& name : {std::string(252, 'a'), enyes}) {
        std::string shown = name;
        EXPECT_FALSE(sessions.add(name, false, shown));
        expectTold("El nombre es demasiado largo.", Dialogs::Icon::Exclamation);
        EXPECT_EQ(shown, name) << "the box keeps what was typed, to be shortened";
        EXPECT_EQ(shared.currentSlot, 0);
        EXPECT_FALSE(shared.sessions[1].record.inUse());
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "only the first user's file";
}

TEST_F(SessionsTest, ANameKeepsOnlyWhatItsFileCanHold) {
    EXPECT_EQ(add("Zoë Иванова\t€"), "Zoë €");
    const fs::path file = folder / "Zoë €.txt";
    ASSERT_TRUE(fs::exists(file));
    EXPECT_EQ(shared.currentSession().displayName, "Zoë €");
    EXPECT_NE(slurp(file).find("\r\nZo\xEB \x80\r\n"), std::string::npos)
        << "line 15 and the file name agree";

    EXPECT_EQ(add("Иван"), "Usuario 3") << "nothing left of it is no name";
    EXPECT_TRUE(fs::exists(folder / "Usuario 3.txt"));
}

} // namespace
} // namespace quillora
