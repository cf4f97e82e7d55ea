// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/OwnThemes.h"

#include "words/PhraseLayout.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>
#include <fstream>
#include <system_error>

namespace quillora {

namespace {

// Strict UTF-8: no overlong forms, no surrogates, nothing past U+10FFFF. A
// file in another code page fails here rather than showing mangled letters.
bool validUtf8(std::string_view bytes) {
    std::size_t i = 0;
    while (i < bytes.size()) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        if (lead < 0x80) {
            ++i;
            continue;
        }
        int extra = 0;
        char32_t cp = 0;
        char32_t least = 0;
        if (lead >= 0xC2 && lead <= 0xDF) {
            extra = 1;
            cp = lead & 0x1F;
            least = 0x80;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            extra = 2;
            cp = lead & 0x0F;
            least = 0x800;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            extra = 3;
            cp = lead & 0x07;
            least = 0x10000;
        } else {
            return false;
        }
        if (bytes.size() - i <= static_cast<std::size_t>(extra)) {
            return false;
        }
        for (int k = 1; k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(bytes[i + static_cast<std::size_t>(k)]);
            if ((next & 0xC0) != 0x80) {
                return false;
            }
            cp = (cp << 6) | (next & 0x3F);
        }
        if (cp < least || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
            return false;
        }
        i += static_cast<std::size_t>(extra) + 1;
    }
    return true;
}

// The letter of the keyboard a character is typed with, or 0 when it has
// none: small letters are capitals, accents and the diaeresis come off the
// vowels, and "ñ" is "Ñ".
char32_t keyboardLetter(char32_t c) {
    if ((c >= U'A' && c <= U'Z') || (c >= U'0' && c <= U'9') || c == U'Ñ') {
        return c;
    }
    if (c >= U'a' && c <= U'z') {
        return c - 0x20;
    }
    if (c == U'ñ') {
        return U'Ñ';
    }
    static constexpr std::u32string_view kAccented[] = {U"ÁÀÂÄáàâä", U"ÉÈÊËéèêë", U"ÍÌÎÏíìîï",
                                                        U"ÓÒÔÖóòôö", U"ÚÙÛÜúùûü"};
    static constexpr char32_t kPlain[] = {U'A', U'E', U'I', U'O', U'U'};
    for (std::size_t v = 0; v < std::size(kPlain); ++v) {
        if (kAccented[v].find(c) != std::u32string_view::npos) {
            return kPlain[v];
        }
    }
    return 0;
}

bool isBlank(char32_t c) {
    return c == U' ' || c == U'\t';
}

std::u32string trimmed(std::u32string_view text) {
    std::size_t first = 0;
    std::size_t last = text.size();
    while (first < last && isBlank(text[first])) {
        ++first;
    }
    while (last > first && isBlank(text[last - 1])) {
        --last;
    }
    return std::u32string(text.substr(first, last - first));
}

std::string describe(char32_t c) {
    if (c < 0x20 || c == 0x7F) {
        return "un carácter de control";
    }
    return "«" + toUtf8(c) + "»";
}

std::string lineRefusal(std::string_view file, int line, const std::string& why) {
    return std::string(file) + ", línea " + std::to_string(line) + ": " + why;
}

std::string fileRefusal(std::string_view file, const std::string& why) {
    return std::string(file) + ": " + why;
}

} // namespace

PhraseCheck checkOwnPhrase(std::string_view line) {
    std::u32string words;
    for (char32_t c : trimmed(toU32(line))) {
        if (isBlank(c)) {
            if (!words.empty() && words.back() != U' ') {
                words.push_back(U' ');
            }
            continue;
        }
        const char32_t letter = keyboardLetter(c);
        if (letter == 0) {
            return {{}, "la frase lleva " + describe(c) + ", que no está en el teclado."};
        }
        words.push_back(letter);
    }
    const std::u32string laid = layOutPhrase(words);
    if (laid.empty()) {
        return {{}, "la frase no cabe en el tablero."};
    }
    return {toUtf8(laid), {}};
}

OwnThemeFile readOwnTheme(std::string_view fileName, std::string_view bytes) {
    OwnThemeFile result;
    result.theme.fileName = fileName;
    if (bytes.size() > kMaxOwnThemeBytes) {
        result.refusals.push_back(fileRefusal(fileName, "el archivo pasa de 256 KB."));
        return result;
    }
    if (bytes.find('\0') != std::string_view::npos || !validUtf8(bytes)) {
        result.refusals.push_back(fileRefusal(fileName, "el archivo no es texto UTF-8."));
        return result;
    }
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    bool named = false;
    int number = 0;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find('\n', start);
        if (end == std::string_view::npos) {
            end = bytes.size();
        }
        std::string_view line = bytes.substr(start, end - start);
        start = end + 1;
        ++number;
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        const std::u32string text = trimmed(toU32(line));
        if (text.empty() || text.front() == U'#') {
            continue;
        }
        if (!named) {
            named = true;
            if (text.size() > kMaxOwnThemeNameChars) {
                result.refusals.push_back(
                    lineRefusal(fileName, number, "el nombre del tema es demasiado largo."));
                return result;
            }
            std::u32string name = text;
            std::replace_if(
                name.begin(), name.end(), [](char32_t c) { return c < 0x20 || c == 0x7F; }, U' ');
            result.theme.name = toUtf8(name);
            continue;
        }
        if (result.theme.phrases.size() >= static_cast<std::size_t>(kMaxOwnPhrases)) {
            result.refusals.push_back(lineRefusal(
                fileName, number, "el tema ya tiene 500 frases; las demás no se usan."));
            break;
        }
        PhraseCheck check = checkOwnPhrase(line);
        if (check.laidOut.empty()) {
            result.refusals.push_back(lineRefusal(fileName, number, check.refusal));
        } else {
            result.theme.phrases.push_back(std::move(check.laidOut));
        }
    }
    if (!named) {
        result.refusals.push_back(fileRefusal(fileName, "el archivo no tiene nombre de tema."));
    } else if (result.theme.phrases.empty()) {
        result.refusals.push_back(fileRefusal(fileName, "el tema no tiene ninguna frase."));
    } else {
        result.usable = true;
    }
    return result;
}

OwnThemeFile readOwnThemeFile(const std::filesystem::path& file) {
    const std::string fileName = file.filename().string();
    std::error_code error;
    // A pipe or a device would hold the reader up: only plain files are read.
    if (!std::filesystem::is_regular_file(file, error)) {
        OwnThemeFile result;
        result.refusals.push_back(fileRefusal(fileName, "no se pudo leer el archivo."));
        return result;
    }
    const auto size = std::filesystem::file_size(file, error);
    if (!error && size > kMaxOwnThemeBytes) {
        OwnThemeFile result;
        result.refusals.push_back(fileRefusal(fileName, "el archivo pasa de 256 KB."));
        return result;
    }
    std::ifstream in(file, std::ios::binary);
    // One byte past the limit tells a file that grew since its size was
    // taken, without reading the rest of it.
    std::string bytes(kMaxOwnThemeBytes + 1, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (in.bad() || (!in && !in.eof())) {
        OwnThemeFile result;
        result.refusals.push_back(fileRefusal(fileName, "no se pudo leer el archivo."));
        return result;
    }
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return readOwnTheme(fileName, bytes);
}

int ownThemeNumber(const std::vector<OwnTheme>& themes, std::string_view name) {
    for (std::size_t index = 0; index < themes.size(); ++index) {
        if (!name.empty() && themes[index].name == name) {
            return ThemeCatalogue::kThemes + 1 + static_cast<int>(index);
        }
    }
    return 0;
}

OwnThemeSet loadOwnThemes(const std::filesystem::path& folder,
                          const std::vector<std::string>& takenNames) {
    OwnThemeSet set;
    std::vector<std::filesystem::path> files;
    std::error_code error;
    std::filesystem::directory_iterator it(folder, error);
    // A folder of thousands of files is no folder of themes: the count of
    // entries looked at is bounded like everything else read at the start.
    constexpr int kMaxEntries = 10 * kMaxOwnThemes;
    for (int seen = 0; !error && it != std::filesystem::directory_iterator() && seen < kMaxEntries;
         it.increment(error), ++seen) {
        const std::filesystem::path& path = it->path();
        std::string extension = path.extension().string();
        std::transform(extension.begin(), extension.end(), extension.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
        std::error_code kindError;
        if (extension == ".txt" && std::filesystem::is_regular_file(path, kindError)) {
            files.push_back(path);
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) {
        return a.filename().string() < b.filename().string();
    });
    std::vector<std::string> names = takenNames;
    for (const std::filesystem::path& path : files) {
        const std::string fileName = path.filename().string();
        if (set.themes.size() >= static_cast<std::size_t>(kMaxOwnThemes)) {
            set.refusals.push_back(fileRefusal(
                fileName, "ya hay 100 temas propios; este y los siguientes no se usan."));
            break;
        }
        OwnThemeFile read = readOwnThemeFile(path);
        set.refusals.insert(set.refusals.end(), read.refusals.begin(), read.refusals.end());
        if (!read.usable) {
            continue;
        }
        if (std::find(names.begin(), names.end(), read.theme.name) != names.end()) {
            set.refusals.push_back(
                fileRefusal(fileName, "ya hay un tema llamado «" + read.theme.name + "»."));
            continue;
        }
        names.push_back(read.theme.name);
        set.themes.push_back(std::move(read.theme));
    }
    return set;
}

} // namespace quillora
