// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigFile.h"

#include "ports/Random.h"
#include "storage/SharedState.h"
#include "words/Text.h"

#include <array>
#include <cmath>
#include <fstream>
#include <system_error>

namespace quillora {

namespace {

namespace fs = std::filesystem;

// 0x80..0x9F of Windows-1252; 0 marks the five unused bytes.
constexpr std::array<char32_t, 32> kHighControls{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

const std::string kDefaultName = "Quillora VS";

// Line numbers (from 1) of the on/off options, with the option each holds.
using Flag = bool Settings::*;
struct FlagLine {
    int line;
    Flag flag;
};
constexpr std::array<FlagLine, 13> kFlagLines{{{4, &Settings::letraOpaca},
                                               {5, &Settings::letraBlanca},
                                               {6, &Settings::lineaBlanca},
                                               {7, &Settings::tamanoReal},
                                               {8, &Settings::sonidos},
                                               {9, &Settings::fraseAutomatica},
                                               {10, &Settings::animacion},
                                               {12, &Settings::sistemaPuntos},
                                               {13, &Settings::supervivencia},
                                               {16, &Settings::usarEnciclopedia},
                                               {17, &Settings::masPuntosNegativos},
                                               {19, &Settings::sinBotonJugar},
                                               {20, &Settings::tecladoPermanente}}};

std::string& line(SharedState& shared, int number) {
    return shared.configLines[static_cast<std::size_t>(number - 1)];
}
double number(const SharedState& shared, int lineNumber) {
    return leadingNumber(shared.configLines[static_cast<std::size_t>(lineNumber - 1)]);
}

std::string randomTheme(Random& random) {
    return std::to_string(random.drawHalfRange(100));
}

} // namespace

std::string fromWindows1252(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 && byte <= 0x9F) {
            const char32_t mapped = kHighControls[byte - 0x80];
            text.push_back(mapped ? mapped : U'?');
        } else {
            text.push_back(byte);
        }
    }
    return toUtf8(text);
}

std::string toWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (char32_t c : toU32(utf8)) {
        if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
            bytes.push_back(static_cast<char>(c));
            continue;
        }
        char out = '?';
        for (std::size_t i = 0; i < kHighControls.size(); ++i) {
            if (kHighControls[i] == c && c != 0) {
                out = static_cast<char>(0x80 + i);
            }
        }
        bytes.push_back(out);
    }
    return bytes;
}

double leadingNumber(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) {
        ++i;
    }
    double sign = 1;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        sign = text[i] == '-' ? -1 : 1;
        ++i;
    }
    double value = 0;
    bool digits = false;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
        digits = true;
    }
    if (i < text.size() && text[i] == '.') {
        double scale = 0.1;
        for (++i; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i, scale /= 10) {
            value += (text[i] - '0') * scale;
            digits = true;
        }
    }
    return digits ? sign * value : 0;
}

std::optional<std::vector<std::string>> readConfigLines(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > kMaxConfigBytes ||
        error) {
        return std::nullopt;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad()) {
        return std::nullopt;
    }
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find('\n', start);
        const bool last = end == std::string::npos;
        if (last) {
            end = bytes.size();
        }
        std::size_t stop = end;
        if (stop > start && bytes[stop - 1] == '\r') {
            --stop;
        }
        lines.push_back(fromWindows1252(std::string_view(bytes).substr(start, stop - start)));
        start = end + 1;
    }
    return lines;
}

bool writeConfigLines(const fs::path& path, const std::vector<std::string>& lines) {
    std::error_code error;
    if (path.empty() || fs::is_directory(path, error)) {
        return false;
    }
    const fs::path folder = path.parent_path();
    if (!folder.empty()) {
        fs::create_directories(folder, error);
    }
    std::string bytes;
    for (const std::string& text : lines) {
        bytes += toWindows1252(text);
        bytes += "\r\n";
    }
    fs::path temporary = path;
    temporary += ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) {
            return false;
        }
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.flush();
        if (!out) {
            out.close();
            fs::remove(temporary, error);
            return false;
        }
    }
    fs::rename(temporary, path, error);
    if (error) {
        fs::remove(temporary, error);
        return false;
    }
    return true;
}

fs::path sessionFilePath(const fs::path& folder, std::string_view userName) {
    std::string name(userName);
    for (char& c : name) {
        if (c == '/' || c == '\0') {
            c = '_';
        }
    }
    if (name.empty()) {
        name = "_";
    } else if (name.front() == '.') {
        name.front() = '_';
    }
    return folder / (name + ".txt");
}

void clearForBoardLoad(SharedState& shared) {
    line(shared, 1).clear();
    line(shared, 2).clear();
    for (int n : {4, 5, 6, 7, 9, 10, 13, 14, 16, 17, 19, 20}) {
        line(shared, n) = "0";
    }
}

void DataLoad(SharedState& shared, Random& random) {
    const auto lines = readConfigLines(shared.currentSession().Archivo);
    if (!lines) {
        line(shared, 3) = "1";
        line(shared, 8) = "1";
        line(shared, 12) = "1";
        line(shared, 11) = randomTheme(random);
        return;
    }
    for (int n = 1; n <= kConfigLines; ++n) {
        const auto index = static_cast<std::size_t>(n - 1);
        line(shared, n) = index < lines->size() ? (*lines)[index] : std::string();
    }
}

void ConfLoad(SharedState& shared) {
    Settings& s = shared.settings;
    shared.currentSession().displayName = line(shared, 15);
    s.fondo = line(shared, 1);
    s.carpetaFondo = line(shared, 2);
    s.nombre = line(shared, 15);

    const double style = number(shared, 3);
    s.estilo = style >= 1 && style <= 4 ? static_cast<int>(style) : 0;
    for (const FlagLine& f : kFlagLines) {
        s.*f.flag = number(shared, f.line) >= 1;
    }
    const double countdown = number(shared, 14);
    s.contratiempo = countdown == 1 ? 1 : countdown >= 2 ? 2 : 0;

    const double theme = number(shared, 11);
    if (theme >= 1 && theme <= 50) {
        s.tema = static_cast<int>(theme);
    } else if (theme == 0) {
        s.tema = 1;
    }
    if (line(shared, 18).empty()) {
        s.colorJuego = shared.palette.defaultBlue;
    } else {
        // A colour is 24 bits; whatever else a hand-edited line holds is
        // dropped rather than turned into a colour of its own.
        const auto packed = static_cast<long long>(number(shared, 18));
        s.colorJuego = Rgb::fromPacked(static_cast<std::uint32_t>(packed) & 0xFFFFFFU);
    }
    shared.palette.gameColour = s.colorJuego;
    if (shared.themeChosen && s.tema >= 0 && s.tema < kThemeFlags) {
        shared.selectedThemes[static_cast<std::size_t>(shared.currentSlot)]
                             [static_cast<std::size_t>(s.tema)] = true;
    }
}

bool ConfSave(SharedState& shared) {
    Settings& s = shared.settings;
    if (s.nombre.empty()) {
        s.nombre = kDefaultName;
    }
    line(shared, 1) = s.fondo;
    line(shared, 2) = s.carpetaFondo;
    line(shared, 3) = std::to_string(s.estilo);
    for (const FlagLine& f : kFlagLines) {
        line(shared, f.line) = s.*f.flag ? "1" : "0";
    }
    // The automatic phrase comes back next time only for a chosen theme,
    // and never in the middle of a tour.
    line(shared, 9) =
        shared.tourPosition == 0 && s.fraseAutomatica && shared.themeChosen ? "1" : "0";
    line(shared, 11) = std::to_string(s.tema);
    line(shared, 14) =
        std::to_string(s.contratiempo == 1 || s.contratiempo == 2 ? s.contratiempo : 0);
    line(shared, 15) = s.nombre;
    line(shared, 18) = std::to_string(s.colorJuego.packed());
    return writeConfigLines(
        shared.currentSession().Archivo,
        std::vector<std::string>(shared.configLines.begin(), shared.configLines.end()));
}

bool NewConfFile(const fs::path& path, const std::string& userName, Random& random) {
    const std::vector<std::string> lines{"",
                                         "",
                                         "1",
                                         "0",
                                         "0",
                                         "0",
                                         "0",
                                         "1",
                                         "0",
                                         "0",
                                         randomTheme(random),
                                         "1",
                                         "0",
                                         "0",
                                         userName,
                                         "0",
                                         "0",
                                         std::to_string(kDefaultBlue.packed()),
                                         "0",
                                         "0"};
    return writeConfigLines(path, lines);
}

} // namespace quillora
