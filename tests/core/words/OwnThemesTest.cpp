// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/OwnThemes.h"

#include "round/PhraseBoard.h"
#include "words/PhraseLayout.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <set>
#include <string>

namespace quillora {
namespace {

// The row rule for a theme of one's own is the one every built-in phrase was
// padded by, apart from the four that break earlier on purpose.
TEST(OwnThemesTest, LaysOutWordsAsTheCataloguePadsItsPhrases) {
    const std::set<std::string_view> breakEarlier{"LOS           PICAPIEDRA", "EL PAJARO     LOCO",
                                                  "GARFIELD Y    SUS AMIGOS",
                                                  "LA GALLINA    DE LOS HUEVOS DE ORO"};
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        for (int index = 1; index <= ThemeCatalogue::kPhrasesPerTheme; ++index) {
            const std::string_view stored = ThemeCatalogue::storedPhrase(theme, index);
            if (breakEarlier.count(stored) == 0) {
                const std::u32string words = PhraseBoard::answerTextOf(toU32(stored));
                EXPECT_EQ(toUtf8(layOutPhrase(words)), stored) << theme << "/" << index;
            }
        }
    }
    // A fourteen-letter word after a full row still keeps a blank before it.
    EXPECT_EQ(toUtf8(layOutPhrase(U"ABCDEFGHIJKLMN OPQRSTUVWXYZAB")),
              "ABCDEFGHIJKLMN              OPQRSTUVWXYZAB");
    EXPECT_TRUE(layOutPhrase(U"ABCDEFGHIJKL ABCDEFGHIJKL ABCDEFGHIJKL ABC").empty());
}

TEST(OwnThemesTest, KeepsTheGoodLinesAndTellsWhyEachOtherOneIsLeftOut) {
    const std::string file = "\xEF\xBB\xBF# palabras de la semana\r\n"
                             "\r\n"
                             "  Mis palabras  \r\n"
                             "pingüino\r\n"
                             "  Árbol   de   navidad\t\r\n"
                             "# no es frase\n"
                             "año 2024\n"
                             "¿qué?\n"
                             "murciélago nocturno del bosque tropical húmedo\n"
                             "\n"
                             "PAQUICEFALOSAURIO";
    const OwnThemeFile read = readOwnTheme("Mis palabras.txt", file);
    ASSERT_TRUE(read.usable);
    EXPECT_EQ(read.theme.fileName, "Mis palabras.txt");
    EXPECT_EQ(read.theme.name, "Mis palabras");
    EXPECT_EQ(read.theme.phrases, (std::vector<std::string>{"PINGUINO", "ARBOL DE      NAVIDAD",
                                                            "AÑO 2024", "PAQUICEFALOSAURIO"}));
    EXPECT_EQ(read.refusals,
              (std::vector<std::string>{
                  "Mis palabras.txt, línea 8: la frase lleva «¿», que no está en el teclado.",
                  "Mis palabras.txt, línea 9: la frase no cabe en el tablero."}));
}

TEST(OwnThemesTest, RefusesFilesThatAreNoThemeWithoutLookingFurther) {
    const struct {
        std::string bytes;
        std::string refusal;
    } cases[] = {
        {"", "t.txt: el archivo no tiene nombre de tema."},
        {"# solo un comentario\n\n", "t.txt: el archivo no tiene nombre de tema."},
        {"Tema\n¡hola!\n", "t.txt, línea 2: la frase lleva «¡», que no está en el teclado."},
        {std::string("Tema\nCA\0SA\n", 12), "t.txt: el archivo no es texto UTF-8."},
        {"Tema\nCAF\xC9\n", "t.txt: el archivo no es texto UTF-8."},  // Windows-1252
        {"Tema\n\xC0\x80\n", "t.txt: el archivo no es texto UTF-8."}, // overlong
        {"Tema\n\xED\xA0\x80\n", "t.txt: el archivo no es texto UTF-8."},
        {std::string(kMaxOwnThemeBytes + 1, 'A'), "t.txt: el archivo pasa de 256 KB."},
        {std::string(kMaxOwnThemeNameChars + 1, 'N') + "\nSOL\n",
         "t.txt, línea 1: el nombre del tema es demasiado largo."},
    };
    for (const auto& c : cases) {
        const OwnThemeFile read = readOwnTheme("t.txt", c.bytes);
        EXPECT_FALSE(read.usable) << c.refusal;
        ASSERT_FALSE(read.refusals.empty()) << c.refusal;
        EXPECT_EQ(read.refusals.front(), c.refusal);
    }

    std::string many = "Muchas\n";
    for (int i = 0; i < kMaxOwnPhrases + 5; ++i) {
        many += "SOL\n";
    }
    const OwnThemeFile read = readOwnTheme("t.txt", many);
    EXPECT_TRUE(read.usable);
    EXPECT_EQ(read.theme.phrases.size(), static_cast<std::size_t>(kMaxOwnPhrases));
    EXPECT_EQ(read.refusals, (std::vector<std::string>{"t.txt, línea 502: el tema ya tiene 500 "
                                                       "frases; las demás no se usan."}));
}

TEST(OwnThemesTest, ReadsTheFolderInFileNameOrderOnceForEachName) {
    TempFolder folder("own-themes");
    const auto write = [&folder](const std::string& name, const std::string& text) {
        std::ofstream(folder.path() / name, std::ios::binary) << text;
    };
    write("b.txt", "Verbos\nCORRER\n");
    write("a.TXT", "Frutas\nMANGO\n");
    write("c.txt", "Frutas\nPERA\n");
    write("d.txt", "ANIMAL\nGATO\n");
    write("notas.md", "Otro\nNADA\n");
    std::filesystem::create_directory(folder.path() / "e.txt");
    write("f.txt", std::string(kMaxOwnThemeBytes + 10, 'A'));

    const OwnThemeSet set = loadOwnThemes(folder.path(), {"ANIMAL"});
    ASSERT_EQ(set.themes.size(), 2u);
    EXPECT_EQ(set.themes[0].name, "Frutas");
    EXPECT_EQ(set.themes[1].name, "Verbos");
    EXPECT_EQ(set.refusals, (std::vector<std::string>{"c.txt: ya hay un tema llamado «Frutas».",
                                                      "d.txt: ya hay un tema llamado «ANIMAL».",
                                                      "f.txt: el archivo pasa de 256 KB."}));

    // A pipe chosen to be added would block a reader that opened it.
    ASSERT_EQ(mkfifo((folder.path() / "tubo.txt").c_str(), 0600), 0);
    EXPECT_EQ(readOwnThemeFile(folder.path() / "tubo.txt").refusals,
              (std::vector<std::string>{"tubo.txt: no se pudo leer el archivo."}));

    const OwnThemeSet none = loadOwnThemes(folder.path() / "no-existe", {});
    EXPECT_TRUE(none.themes.empty());
    EXPECT_TRUE(none.refusals.empty());
}

} // namespace
} // namespace quillora
