// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigFile.h"

#include "ports/Dialogs.h"
#include "ports/Random.h"
#include "state/SharedState.h"
#include "storage/FileReplace.h"
#include "storage/ProgressFile.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <fstream>
#include <limits>
#include <system_error>

namespace quillora {

namespace {

namespace fs = std::filesystem;

// 0x80..0x9F of Windows-1252. The five bytes the code page leaves unused
// stand for the control characters of the same number, as Windows reads
// them, so no byte of a file is lost on its way through the game.
constexpr std::array<char32_t, 32> kHighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

const std::string kDefaultName = "Quillora VS";
// A new file's theme is Int(100 * r / 2): 0 to 49, where 0 loads as theme 1.
constexpr int kThemeDrawRange = 100;

// The lines that are not on/off options.
enum Line : int {
    kPictureLine = 1,
    kPictureFolderLine = 2,
    kLetterStyleLine = 3,
    kAutoPhraseLine = 9,
    kThemeLine = 11,
    kCountdownLine = 14,
    kUserNameLine = 15,
    kGameColourLine = 18,
};

// The on/off options and their lines; loading and saving both go through
// this one table.
using Flag = bool Settings::*;
struct FlagLine {
    int line;
    Flag flag;
};
constexpr std::array<FlagLine, 13> kFlagLines{{{4, &Settings::opaqueLetters},
                                               {5, &Settings::whiteLetters},
                                               {6, &Settings::whiteLines},
                                               {7, &Settings::realSize},
                                               {8, &Settings::sounds},
                                               {kAutoPhraseLine, &Settings::autoPhrase},
                                               {10, &Settings::animated},
                                               {12, &Settings::pointsSystem},
                                               {13, &Settings::survival},
                                               {16, &Settings::useEncyclopedia},
                                               {17, &Settings::moreNegativePoints},
                                               {19, &Settings::playButtonHidden},
                                               {20, &Settings::keyboardKeptOpen}}};

std::string& line(SharedState& shared, int number) {
    return shared.configLines[static_cast<std::size_t>(number - 1)];
}
double number(SharedState& shared, int lineNumber) {
    return leadingNumber(line(shared, lineNumber));
}

std::string randomTheme(Random& random) {
    return std::to_string(random.drawHalfRange(kThemeDrawRange));
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The twenty lines that hold a set of options. Line 9 is passed apart: the
// automatic phrase is only kept when the game says so.
std::vector<std::string> linesOf(const Settings& s, bool keepAutomaticPhrase) {
    std::vector<std::string> lines(kConfigLines);
    const auto at = [&lines](int number) -> std::string& {
        return lines[static_cast<std::size_t>(number - 1)];
    };
    at(kPictureLine) = s.backgroundPicture;
    at(kPictureFolderLine) = s.pictureFolder;
    at(kLetterStyleLine) = std::to_string(s.letterStyle);
    for (const FlagLine& f : kFlagLines) {
        const bool on = f.line == kAutoPhraseLine ? keepAutomaticPhrase : s.*f.flag;
        at(f.line) = on ? "1" : "0";
    }
    // The file moves between systems that know only the fifty built-in
    // themes: a theme of one's own never reaches it.
    at(kThemeLine) = std::to_string(s.theme <= ThemeCatalogue::kThemes ? s.theme : 1);
    at(kCountdownLine) = std::to_string(s.countdown == 1 || s.countdown == 2 ? s.countdown : 0);
    at(kUserNameLine) = s.userName;
    at(kGameColourLine) = std::to_string(s.gameColour.packed());
    return lines;
}

// The Windows-1252 byte of a character, if the code page has one.
std::optional<char> windows1252Byte(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == c) {
            return static_cast<char>(0x80 + i);
        }
    }
    return std::nullopt;
}

bool isControl(unsigned char byte) {
    return byte < 0x20 && byte != '\t';
}

// The old system's end-of-file mark, Ctrl+Z.
constexpr char kEndOfFileMark = '\x1A';

} // namespace

void dropEndOfFileMark(std::string& bytes) {
    const std::size_t lastText = bytes.find_last_not_of("\x1A\r\n");
    const std::size_t tail = lastText == std::string::npos ? 0 : lastText + 1;
    const std::size_t mark = bytes.find(kEndOfFileMark, tail);
    if (mark != std::string::npos) {
        bytes.resize(mark);
    }
}

std::vector<std::string_view> splitLines(std::string_view bytes) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t end = bytes.find_first_of("\r\n", start);
        if (end == std::string::npos) {
            end = bytes.size();
        }
        lines.push_back(bytes.substr(start, end - start));
        start = end + 1;
        if (end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n') {
            ++start;
        }
    }
    return lines;
}

std::string fromWindows1252(std::string_view bytes) {
    std::u32string text;
    text.reserve(bytes.size());
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text.push_back(byte >= 0x80 && byte <= 0x9F ? kHighControls[byte - 0x80] : byte);
    }
    return toUtf8(text);
}

std::string toWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (char32_t c : toU32(utf8)) {
        bytes.push_back(windows1252Byte(c).value_or('?'));
    }
    return bytes;
}

bool storableInLine(char32_t c) {
    // C1 controls stand for the bytes the code page leaves unused: they would
    // go through, but no name holds them on purpose.
    const bool control = c < 0x20 || (c >= 0x7F && c <= 0x9F);
    return !control && windows1252Byte(c).has_value();
}

std::string storableText(std::string_view utf8) {
    std::u32string kept;
    for (char32_t c : toU32(utf8)) {
        if (storableInLine(c)) {
            kept.push_back(c);
        }
    }
    return toUtf8(kept);
}

double leadingNumber(std::string_view text) {
    std::size_t i = text.find_first_not_of(" \t");
    if (i == std::string_view::npos) {
        return 0;
    }
    const bool negative = text[i] == '-';
    if (text[i] == '-' || text[i] == '+') {
        ++i;
    }
    const std::size_t start = i;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
    }
    bool digits = i > start;
    const bool wholePart =
        text.substr(start, i - start).find_first_not_of('0') != std::string_view::npos;
    if (i < text.size() && text[i] == '.') {
        const std::size_t fraction = ++i;
        while (i < text.size() && isDigit(text[i])) {
            ++i;
        }
        digits = digits || i > fraction;
    }
    if (!digits) {
        return 0;
    }
    // from_chars rather than strtod: the game runs under the player's
    // locale, where strtod may want a decimal comma.
    double value = 0;
    const auto parsed =
        std::from_chars(text.data() + start, text.data() + i, value, std::chars_format::fixed);
    if (parsed.ec == std::errc::result_out_of_range) {
        value = wholePart ? std::numeric_limits<double>::max() : 0.0;
    }
    return negative ? -value : value;
}

Rgb colourFromLine(std::string_view text, Rgb defaultColour) {
    if (text.empty()) {
        return defaultColour;
    }
    // A negative or larger number from a hand-edited line is no colour; it
    // would otherwise wrap round into some unrelated one.
    const double value = leadingNumber(text);
    if (!(value >= 0 && value <= 0xFFFFFF)) {
        return defaultColour;
    }
    return Rgb::fromPacked(static_cast<std::uint32_t>(value));
}

int leadingCount(std::string_view text) {
    const double value = leadingNumber(text);
    return static_cast<int>(std::clamp(value, -32768.0, 32767.0));
}

std::optional<std::string> readConfigBytes(const fs::path& path) {
    std::error_code error;
    // A folder or a device is no configuration, and opening a pipe would
    // hold the game up until someone wrote into it.
    if (!fs::is_regular_file(path, error)) {
        return std::nullopt;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    // One byte more than the bound tells a larger file without trusting a
    // size taken before the read.
    std::string bytes(kMaxConfigBytes + 1, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (in.bad()) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return bytes;
}

std::optional<ConfigText> readConfigText(const fs::path& path) {
    auto read = readConfigBytes(path);
    if (!read) {
        return std::nullopt;
    }
    std::string& bytes = *read;
    ConfigText text;
    text.whole = bytes.size() <= kMaxConfigBytes;
    if (text.whole) {
        dropEndOfFileMark(bytes);
    } else {
        // Only lines that end inside what was read are whole lines.
        const std::size_t lastEnd = bytes.find_last_of("\r\n", bytes.size() - 2);
        bytes.resize(lastEnd == std::string::npos ? 0 : lastEnd + 1);
    }
    const std::vector<std::string_view> lines = splitLines(bytes);
    // A large file is the player's own as long as it begins with the game's
    // twenty lines; one that does not is no configuration at all.
    if (!text.whole && lines.size() < static_cast<std::size_t>(kConfigLines)) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i >= static_cast<std::size_t>(kConfigLines)) {
            text.beyond = text.beyond || !lines[i].empty();
            continue;
        }
        if (std::any_of(lines[i].begin(), lines[i].end(),
                        [](char c) { return isControl(static_cast<unsigned char>(c)); })) {
            return std::nullopt;
        }
        text.lines.push_back(fromWindows1252(lines[i]));
    }
    text.beyond = text.beyond || !text.whole;
    return text;
}

std::optional<std::vector<std::string>> readConfigLines(const fs::path& path) {
    auto text = readConfigText(path);
    if (!text) {
        return std::nullopt;
    }
    return std::move(text->lines);
}

bool configFileMissing(const fs::path& path) {
    std::error_code error;
    return fs::status(path, error).type() == fs::file_type::not_found;
}

bool writeConfigLines(const fs::path& path, const std::vector<std::string>& lines) {
    if (!path.has_filename()) {
        return false;
    }
    // Through a link to its file: the player who linked the file elsewhere
    // wants it kept there.
    const fs::path file = resolveLinks(path);
    if (file.empty()) {
        return false;
    }
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return false;
    }
    const fs::path folder = file.parent_path();
    if (!folder.empty()) {
        fs::create_directories(folder, error);
        if (error) {
            return false;
        }
    }
    // A file the game cannot read through, or one holding more than it
    // writes back, is the player's: its bytes are kept before they go.
    if (fs::exists(status)) {
        const auto text = readConfigText(file);
        if ((!text || text->beyond) && !keepCopyBeside(file)) {
            return false;
        }
    }
    std::string bytes;
    for (const std::string& text : lines) {
        std::string encoded = toWindows1252(text);
        // A line break inside a value would shift every later line.
        for (char& c : encoded) {
            if (c == '\r' || c == '\n') {
                c = ' ';
            }
        }
        bytes += encoded;
        bytes += "\r\n";
    }
    return replaceFile(file, bytes);
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
    // A user called like the main session's file would overwrite it.
    auto lowered = [](std::string text) {
        for (char& c : text) {
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
        return text;
    };
    if (lowered(name + ".txt") == lowered(kMainConfigName)) {
        name.insert(name.begin(), '_');
    }
    return folder / (name + ".txt");
}

void clearForBoardLoad(SharedState& shared) {
    line(shared, kPictureLine).clear();
    line(shared, kPictureFolderLine).clear();
    for (int n : {4, 5, 6, 7, 9, 10, 13, 14, 16, 17, 19, 20}) {
        line(shared, n) = "0";
    }
}

void readSessionFile(SharedState& shared, Random& random) {
    shared.settingsFile = shared.currentSession().filePath;
    const auto lines = readConfigLines(shared.settingsFile);
    if (!lines) {
        line(shared, kLetterStyleLine) = "1";
        line(shared, 8) = "1";
        line(shared, 12) = "1";
        line(shared, kThemeLine) = randomTheme(random);
        // The name and colour in use stay; at the first start they are the
        // fallbacks the main menu put in place when it could not read the file.
        line(shared, kUserNameLine) = shared.settings.userName;
        line(shared, kGameColourLine) = std::to_string(shared.palette.gameColour.packed());
        return;
    }
    for (int n = 1; n <= kConfigLines; ++n) {
        const auto index = static_cast<std::size_t>(n - 1);
        line(shared, n) = index < lines->size() ? (*lines)[index] : std::string();
    }
}

void applyLineValues(SharedState& shared) {
    Settings& s = shared.settings;
    s.backgroundPicture = line(shared, kPictureLine);
    s.pictureFolder = line(shared, kPictureFolderLine);
    s.userName = line(shared, kUserNameLine);
    shared.currentSession().displayName = s.userName;

    const double style = number(shared, kLetterStyleLine);
    s.letterStyle = style >= 1 && style <= 4 ? static_cast<int>(style) : 0;
    for (const FlagLine& f : kFlagLines) {
        s.*f.flag = number(shared, f.line) >= 1;
    }
    const double countdown = number(shared, kCountdownLine);
    s.countdown = countdown == 1 ? 1 : countdown >= 2 ? 2 : 0;

    const double theme = number(shared, kThemeLine);
    if (theme >= 1 && theme <= ThemeCatalogue::kThemes) {
        s.theme = static_cast<int>(theme);
    } else if (theme == 0) {
        s.theme = 1;
    }
    // A theme of one's own chosen last stands in for the built-in one the
    // file keeps, as long as its file is still there.
    if (const int own = ownThemeNumber(shared.ownThemes, shared.current().ownThemeName); own > 0) {
        s.theme = own;
    }
    s.gameColour = colourFromLine(line(shared, kGameColourLine), shared.palette.defaultBlue);
    shared.palette.gameColour = s.gameColour;
    if (shared.themeChosen && s.theme >= 0 && s.theme < kThemeFlags) {
        shared.current().selectedThemes[static_cast<std::size_t>(s.theme)] = true;
    }
}

void loadSessionSettings(SharedState& shared, Random& random) {
    clearForBoardLoad(shared);
    readSessionFile(shared, random);
    applyLineValues(shared);
}

bool sessionSettingsLoaded(const SharedState& shared) {
    return !shared.settingsFile.empty() && shared.settingsFile == shared.currentSession().filePath;
}

bool reportSave(SharedState& shared, Dialogs& dialogs, const std::string& path, bool saved) {
    // The options are saved after every game and every change of an option:
    // a folder that stays read-only would otherwise put the same box in
    // front of the player again and again. Once is enough for each failing
    // file, until it saves again; a later failure is news.
    if (saved) {
        shared.saveFailuresTold.erase(path);
        return true;
    }
    if (shared.saveFailuresTold.insert(path).second) {
        dialogs.information("No se pudo guardar la configuración en " + path + ".");
    }
    return false;
}

bool saveSettings(SharedState& shared, Dialogs& dialogs) {
    const bool saved =
        reportSave(shared, dialogs, shared.currentSession().filePath, writeOptions(shared));
    // A folder that refuses both files is told of once, not twice.
    if (saved) {
        saveProgress(shared, dialogs);
    } else {
        writeProgress(shared);
    }
    return saved;
}

bool writeSettings(SharedState& shared) {
    writeProgress(shared);
    return writeOptions(shared);
}

bool writeOptions(SharedState& shared) {
    Settings& s = shared.settings;
    if (s.userName.empty()) {
        s.userName = kDefaultName;
    }
    // The automatic phrase comes back next time only for a chosen theme,
    // and never in the middle of a tour.
    const bool keepAutomaticPhrase = shared.tourPosition == 0 && s.autoPhrase && shared.themeChosen;
    std::vector<std::string> lines = linesOf(s, keepAutomaticPhrase);
    const auto own = static_cast<std::size_t>(s.theme - ThemeCatalogue::kThemes - 1);
    shared.current().ownThemeName =
        s.theme > ThemeCatalogue::kThemes && own < shared.ownThemes.size()
            ? shared.ownThemes[own].name
            : std::string();
    if (s.theme > ThemeCatalogue::kThemes) {
        // While a theme of one's own is played the file keeps the built-in
        // theme it held.
        const double kept = number(shared, kThemeLine);
        if (kept >= 1 && kept <= ThemeCatalogue::kThemes) {
            lines[static_cast<std::size_t>(kThemeLine - 1)] = line(shared, kThemeLine);
        }
    }
    std::copy(lines.begin(), lines.end(), shared.configLines.begin());
    return writeConfigLines(shared.currentSession().filePath, lines);
}

std::vector<std::string> settingsLines(const Settings& settings) {
    return linesOf(settings, settings.autoPhrase);
}

bool writeNewUserFile(const fs::path& path, const std::string& userName, Random& random) {
    // A default Settings is a new user's: only the theme and the name differ.
    Settings fresh;
    fresh.theme = random.drawHalfRange(kThemeDrawRange);
    fresh.userName = userName;
    return writeConfigLines(path, linesOf(fresh, fresh.autoPhrase));
}

} // namespace quillora
