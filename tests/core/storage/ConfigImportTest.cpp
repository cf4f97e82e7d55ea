// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigImport.h"

#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "support/Fakes.h"
#include "support/RefusedWrites.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;
using Outcome = ImportOutcome;
using Texts = std::vector<std::string>;

const std::string kAskVersion5 =
    "¿Desea copiar la configuración que hay en C:\\Program Files a esta?";
const std::string kAskVersion4 = "¿Desea copiar la configuración de la versión 4 a la 5?";
const std::string kCopyFailed =
    "La copia de la configuración anterior no se logró hacer, intente más tarde.";

// Two old files nobody could take for each other, each longer than the
// sixteen bytes RefusedWrites lets through.
const std::string kVersion5 = "fondo5.jpg\r\nC:\\Fotos\r\n2\r\n";
const std::string kVersion4 = "fondo4.jpg\r\nC:\\Viejas\r\n3\r\n";

void put(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

class ConfigImportTest : public ::testing::Test {
protected:
    ConfigImportTest() { shared.dataFolder = folder; }

    fs::path mainFile() const { return folder / "QuilloraVS5.txt"; }
    fs::path version5() const { return folder / "Quillora5.txt"; }
    fs::path version4() const { return folder / "Quillora4.txt"; }
    void putBoth() const {
        put(version5(), kVersion5);
        put(version4(), kVersion4);
    }
    Texts questions() const {
        Texts asked;
        for (const auto& box : dialogs.shown) {
            if (box.question) {
                asked.push_back(box.text);
            }
        }
        return asked;
    }
    // What the data folder holds, bytes and links alike, so that a file
    // written, left half-way or touched shows.
    std::map<std::string, std::string> contents() const {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            if (entry.is_symlink()) {
                found[name] = "-> " + fs::read_symlink(entry.path()).string();
            } else if (entry.is_regular_file()) {
                found[name] = slurp(entry.path());
            } else {
                found[name] = "(folder)";
            }
        }
        return found;
    }

    TempFolder temp{"quillora-import"};
    const fs::path& folder = temp.path();
    SharedState shared;
    ScriptedDialogs dialogs;
};

TEST_F(ConfigImportTest, ANoToTheVersion5QuestionSilencesBothUntilTheProgramEnds) {
    putBoth();
    dialogs.answer({false});
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::Declined);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].question);
    EXPECT_EQ(dialogs.shown[0].kind, Dialogs::Question::YesNo);
    EXPECT_EQ(dialogs.shown[0].text, kAskVersion5);

    // Later showings of the menu in the same run: the version 4 file is not
    // offered either, even once the version 5 one is gone.
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::NotOffered);
    fs::remove(version5());
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::NotOffered);
    EXPECT_EQ(dialogs.shown.size(), 1U);
    EXPECT_FALSE(fs::exists(mainFile()));
    EXPECT_EQ(slurp(version4()), kVersion4);

    // The next start of the program asks again.
    SharedState nextRun;
    nextRun.dataFolder = folder;
    dialogs.answer({false});
    EXPECT_EQ(offerOldConfig(nextRun, dialogs), Outcome::Declined);
    EXPECT_EQ(questions(), (Texts{kAskVersion5, kAskVersion4}));
}

TEST_F(ConfigImportTest, AMainFileOfAnyKindMeansNoQuestion) {
    putBoth();
    put(folder / "otro.txt", "Beto\r\n");
    const std::vector<std::pair<std::string, std::function<void()>>> mains{
        {"a file", [&] { put(mainFile(), "Ana\r\n"); }},
        {"an empty file", [&] { put(mainFile(), ""); }},
        {"a folder", [&] { fs::create_directory(mainFile()); }},
        {"a link to a file", [&] { fs::create_symlink("otro.txt", mainFile()); }}};
    for (const auto& [kind, make] : mains) {
        SCOPED_TRACE(kind);
        make();
        const auto before = contents();
        EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::NotOffered);
        EXPECT_EQ(contents(), before);
        fs::remove_all(mainFile());
    }
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_FALSE(shared.importDeclined);
}

// --- the copy ---------------------------------------------------------------------

// As large as an old file may be, lines ended by LF alone, the last one open:
// the file, and the copy it makes.
std::pair<std::string, std::string> atTheSizeLimit() {
    const std::string line(99, 'x');
    std::string old, copy;
    while (old.size() + line.size() + 1 <= kMaxConfigBytes) {
        old += line + "\n";
        copy += line + "\r\n";
    }
    const std::string last(kMaxConfigBytes - old.size(), 'y');
    return {old + last, copy + last + "\r\n"};
}

TEST_F(ConfigImportTest, EveryCopiedLineEndsInCrLfAndNothingElseChanges) {
    // What the old file holds, and what its copy must hold.
    const std::vector<std::pair<std::string, std::string>> files{
        {"fondo.jpg\r\n\r\n1\r\n", "fondo.jpg\r\n\r\n1\r\n"},
        {"fondo.jpg\n\n1\n0\n", "fondo.jpg\r\n\r\n1\r\n0\r\n"},
        {"fondo.jpg\r\r1\r", "fondo.jpg\r\n\r\n1\r\n"},
        {"fondo.jpg\r\nAna", "fondo.jpg\r\nAna\r\n"},
        {"a\nb\r\nc\rd\r\r\ne", "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n"},
        {"\n\nAna\n\n", "\r\n\r\nAna\r\n\r\n"},
        {"", "\r\n"},
        // Windows-1252 letters, a tab, a backslash and blanks: no conversion.
        {"  Mu\xF1"
         "eco\t\xC1rbol\x80 \\ \n\xFF",
         "  Mu\xF1"
         "eco\t\xC1rbol\x80 \\ \r\n\xFF\r\n"},
        {"Ana\r\n255\r\n\x1A", "Ana\r\n255\r\n"},
        atTheSizeLimit()};
    for (const auto& [old, copy] : files) {
        SCOPED_TRACE(testing::PrintToString(old.substr(0, 24)));
        fs::remove(mainFile());
        dialogs.shown.clear();
        SharedState run;
        run.dataFolder = folder;
        put(version5(), old);
        put(version4(), kVersion4);
        dialogs.answer({true});
        EXPECT_EQ(offerOldConfig(run, dialogs), Outcome::Copied);
        EXPECT_EQ(slurp(mainFile()), copy);
        EXPECT_EQ(slurp(version5()), old) << "the old file stays as it was";
        EXPECT_EQ(questions(), Texts{kAskVersion5})
            << "no version 4 question after the version 5 one";

        // The main file exists now: no more offers.
        EXPECT_EQ(offerOldConfig(run, dialogs), Outcome::NotOffered);
        EXPECT_EQ(dialogs.shown.size(), 1U);
        EXPECT_FALSE(run.importDeclined);
    }
}

TEST_F(ConfigImportTest, TheVersion4FileIsOfferedWhenThereIsNoVersion5) {
    put(version4(), "Ana\nRoja");
    dialogs.answer({false});
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::Declined);
    EXPECT_TRUE(shared.importDeclined);
    EXPECT_FALSE(fs::exists(mainFile()));

    SharedState nextRun;
    nextRun.dataFolder = folder;
    nextRun.settingsFile = mainFile().string(); // a board read it while it was missing
    dialogs.answer({true});
    EXPECT_EQ(offerOldConfig(nextRun, dialogs), Outcome::Copied);
    EXPECT_EQ(questions(), (Texts{kAskVersion4, kAskVersion4}));
    EXPECT_EQ(slurp(mainFile()), "Ana\r\nRoja\r\n");
    EXPECT_TRUE(nextRun.settingsFile.empty()) << "the options in memory are not the copy's";
    EXPECT_FALSE(nextRun.importDeclined);
}

TEST_F(ConfigImportTest, TheCopyGoesThroughALinkedMainFileAndMakesItsFolder) {
    put(version5(), "Ana\n255");
    fs::create_symlink(fs::path("guardado") / "mio.txt", mainFile());
    dialogs.answer({true});
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::Copied);
    EXPECT_TRUE(fs::is_symlink(mainFile()));
    EXPECT_EQ(slurp(folder / "guardado" / "mio.txt"), "Ana\r\n255\r\n");
}

// --- old files the game cannot read --------------------------------------------------

struct OldFile {
    std::string name;
    // False when this system cannot make such a file (permissions do not
    // stop root).
    std::function<bool(const fs::path&)> make;
    bool countsAsMissing;
};
void PrintTo(const OldFile& c, std::ostream* out) {
    *out << c.name;
}

class OldFiles : public ConfigImportTest, public ::testing::WithParamInterface<OldFile> {};

TEST_P(OldFiles, OnlyAReadableRegularFileWithinTheLimitIsOffered) {
    const OldFile& old = GetParam();
    if (!old.make(version5())) {
        GTEST_SKIP() << "this user can read any file";
    }

    // In place of the version 5 file: the version 4 one is offered when the
    // first counts as missing.
    put(version4(), kVersion4);
    dialogs.answer({true});
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::Copied);
    EXPECT_EQ(questions(), Texts{old.countsAsMissing ? kAskVersion4 : kAskVersion5});
    EXPECT_EQ(slurp(mainFile()) == kVersion4, old.countsAsMissing);

    // In place of the version 4 file: no question at all.
    TempFolder other{"quillora-import-v4"};
    SharedState run;
    run.dataFolder = other.path();
    ASSERT_TRUE(old.make(other.path() / "Quillora4.txt"));
    if (!old.countsAsMissing) {
        dialogs.answer({false});
    }
    EXPECT_EQ(offerOldConfig(run, dialogs),
              old.countsAsMissing ? Outcome::NotOffered : Outcome::Declined);
    EXPECT_EQ(questions().size(), old.countsAsMissing ? 1U : 2U);
    EXPECT_FALSE(fs::exists(fs::symlink_status(other.path() / "QuilloraVS5.txt")));
}

bool putBytes(const fs::path& path, std::uintmax_t size) {
    put(path, std::string(size, 'x'));
    return true;
}

INSTANTIATE_TEST_SUITE_P(
    ConfigImport, OldFiles,
    ::testing::Values(
        OldFile{"Folder", [](const fs::path& p) { return fs::create_directory(p); }, true},
        // Opening a pipe would wait for a writer for ever.
        OldFile{"Pipe", [](const fs::path& p) { return ::mkfifo(p.c_str(), 0600) == 0; }, true},
        OldFile{"LinkToNothing",
                [](const fs::path& p) {
                    fs::create_symlink("nada.txt", p);
                    return true;
                },
                true},
        OldFile{"NotReadable",
                [](const fs::path& p) {
                    put(p, kVersion5);
                    fs::permissions(p, fs::perms::none);
                    return !std::ifstream(p);
                },
                true},
        OldFile{"OneByteTooLarge",
                [](const fs::path& p) { return putBytes(p, kMaxConfigBytes + 1); }, true},
        OldFile{"AtTheLimit", [](const fs::path& p) { return putBytes(p, kMaxConfigBytes); },
                false},
        OldFile{"LinkToAFile",
                [](const fs::path& p) {
                    put(p.parent_path() / "enlazado.txt", kVersion5);
                    fs::create_symlink("enlazado.txt", p);
                    return true;
                },
                false}),
    [](const ::testing::TestParamInfo<OldFile>& info) { return info.param.name; });

// --- a copy that fails -------------------------------------------------------------

struct Refusal {
    std::string name;
    // False when this system cannot refuse that way.
    std::function<bool(const fs::path& folder)> arrange;
    bool diskFull = false;
};
void PrintTo(const Refusal& c, std::ostream* out) {
    *out << c.name;
}

class FailedCopies : public ConfigImportTest, public ::testing::WithParamInterface<Refusal> {
protected:
    // A folder left read-only could not be emptied at the end.
    ~FailedCopies() override { fs::permissions(folder, fs::perms::owner_all); }
};

TEST_P(FailedCopies, LeaveNoMainFileAndAreOfferedAgain) {
    put(version5(), kVersion5);
    if (!GetParam().arrange(folder)) {
        GTEST_SKIP() << "this user may write anywhere";
    }
    const auto before = contents();
    dialogs.answer({true});
    Outcome outcome = Outcome::NotOffered;
    {
        std::optional<RefusedWrites> refused;
        if (GetParam().diskFull) {
            refused.emplace();
        }
        outcome = offerOldConfig(shared, dialogs);
    }
    EXPECT_EQ(outcome, Outcome::Failed);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_FALSE(dialogs.shown[1].question);
    EXPECT_EQ(dialogs.shown[1].icon, Dialogs::Icon::Information);
    EXPECT_EQ(dialogs.shown[1].text, kCopyFailed);
    EXPECT_EQ(contents(), before) << "no part of the copy is left behind";
    EXPECT_FALSE(shared.importDeclined);

    // The next showing of the menu offers it again.
    dialogs.answer({false});
    EXPECT_EQ(offerOldConfig(shared, dialogs), Outcome::Declined);
    EXPECT_EQ(questions(), (Texts{kAskVersion5, kAskVersion5}));
}

INSTANTIATE_TEST_SUITE_P(
    ConfigImport, FailedCopies,
    ::testing::Values(Refusal{"DiskFull", [](const fs::path&) { return true; }, true},
                      Refusal{"MainFolderIsAFile",
                              [](const fs::path& folder) {
                                  put(folder / "bloqueo", "no es una carpeta");
                                  fs::create_symlink(fs::path("bloqueo") / "QuilloraVS5.txt",
                                                     folder / "QuilloraVS5.txt");
                                  return true;
                              }},
                      Refusal{"ReadOnlyFolder",
                              [](const fs::path& folder) {
                                  fs::permissions(folder,
                                                  fs::perms::owner_read | fs::perms::owner_exec);
                                  return !std::ofstream(folder / "prueba");
                              }}),
    [](const ::testing::TestParamInfo<Refusal>& info) { return info.param.name; });

} // namespace
} // namespace quillora
