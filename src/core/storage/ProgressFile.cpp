// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ProgressFile.h"

#include "ports/Dialogs.h"
#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"
#include "words/OwnThemes.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <optional>
#include <system_error>
#include <vector>

namespace quillora {

namespace {

namespace fs = std::filesystem;

// Far beyond any account the game can reach, and still exact in a double.
constexpr double kMostPoints = 1e15;
// A theme's name is a short line; a longer one is no name the game wrote.
constexpr std::size_t kMostNameBytes = 1024;

constexpr std::string_view kNormalPoints = "normal points";
constexpr std::string_view kSurvivalPoints = "survival points";
constexpr std::string_view kCorrections = "corrections left";
constexpr std::string_view kThemes = "themes";
constexpr std::string_view kTour = "tour";
constexpr std::string_view kTourThemes = "tour themes";
constexpr std::string_view kLastOwnTheme = "last own theme";
constexpr std::string_view kOwnTheme = "own theme";
constexpr std::string_view kTourOwnTheme = "tour own theme";
constexpr std::string_view kTourAtOwnTheme = "tour at own theme";
constexpr std::string_view kHistory = "history";

// The statistics counters: "normal games", "survival best", ...
using Counter = std::int16_t UserStats::Counters::*;
struct CounterKey {
    std::string_view name;
    Counter counter;
};
constexpr std::array<CounterKey, 4> kCounters{{{"errors", &UserStats::Counters::errors},
                                               {"games", &UserStats::Counters::games},
                                               {"best", &UserStats::Counters::best},
                                               {"worst", &UserStats::Counters::worst}}};

std::optional<long long> wholeNumber(std::string_view text, long long least, long long most) {
    long long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value < least ||
        value > most) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> points(std::string_view text) {
    double value = 0;
    // from_chars, as the player's locale may want a decimal comma.
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() ||
        !std::isfinite(value) || std::fabs(value) > kMostPoints) {
        return std::nullopt;
    }
    return value;
}

// Whole points as plain digits; anything else in the shortest text that
// reads back as the very same number.
std::string pointsText(double value) {
    if (std::nearbyint(value) == value && std::fabs(value) <= kMostPoints) {
        return std::to_string(static_cast<long long>(value));
    }
    std::array<char, 64> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return std::string(buffer.data(), written.ptr);
}

std::optional<std::array<bool, kThemeFlags>> themeList(std::string_view text) {
    std::array<bool, kThemeFlags> themes{};
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        const auto number = wholeNumber(text.substr(0, comma), 1, ThemeCatalogue::kThemes);
        if (!number) {
            return std::nullopt;
        }
        themes[static_cast<std::size_t>(*number)] = true;
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    }
    return themes;
}

std::string themeListText(const std::array<bool, kThemeFlags>& themes) {
    std::string text;
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        if (themes[static_cast<std::size_t>(theme)]) {
            text += (text.empty() ? "" : ",") + std::to_string(theme);
        }
    }
    return text;
}

bool validUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80           ? 1
                                   : (lead >> 5) == 0x6  ? 2
                                   : (lead >> 4) == 0xE  ? 3
                                   : (lead >> 3) == 0x1E ? 4
                                                         : 0;
        if (length == 0 || i + length > text.size()) {
            return false;
        }
        char32_t c = length == 1 ? lead : lead & (0x7F >> length);
        for (std::size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            if ((next & 0xC0) != 0x80) {
                return false;
            }
            c = (c << 6) | (next & 0x3F);
        }
        constexpr std::array<char32_t, 5> kLeast{0, 0, 0x80, 0x800, 0x10000};
        if (c < kLeast[length] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
            return false;
        }
        i += length;
    }
    return true;
}

bool hasControl(std::string_view text) {
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x20 && c != '\t') || byte == 0x7F) {
            return true;
        }
    }
    return false;
}

// A text goes on one line of the file: whatever would end the line, or could
// not be read back, becomes a blank.
std::string oneLine(std::string_view text) {
    std::string line(text);
    for (char& c : line) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x20 && c != '\t') || byte == 0x7F) {
            c = ' ';
        }
    }
    return validUtf8(line) ? line : std::string();
}

bool anyTheme(const std::array<bool, kThemeFlags>& themes) {
    return std::find(themes.begin(), themes.end(), true) != themes.end();
}

// A statistics counter named by its key ("normal games", "survival best"...).
bool takeCounter(std::string_view key, std::string_view value, UserStats& stats) {
    for (const bool survival : {false, true}) {
        const std::string_view column = survival ? "survival " : "normal ";
        for (const CounterKey& c : kCounters) {
            if (!key.starts_with(column) || key.substr(column.size()) != c.name) {
                continue;
            }
            const auto number = wholeNumber(value, std::numeric_limits<std::int16_t>::min(),
                                            std::numeric_limits<std::int16_t>::max());
            if (!number) {
                return false;
            }
            UserStats::Counters columns[2] = {stats.normal(), stats.survival()};
            columns[survival ? 1 : 0].*c.counter = static_cast<std::int16_t>(*number);
            stats = UserStats(columns[0], columns[1]);
            return true;
        }
    }
    return true;
}

// One "key=value" line into the progress; false for a value that is none.
// The tour's copy is taken apart: it counts only while a tour runs.
bool takeLine(std::string_view key, std::string_view value, Progress& p,
              std::vector<std::string_view>& history, std::array<bool, kThemeFlags>& tourCopy) {
    if (key == kHistory) {
        history.push_back(value);
        return true;
    }
    if (key == kLastOwnTheme || key == kTourAtOwnTheme) {
        (key == kLastOwnTheme ? p.lastOwnTheme : p.tourOwnTheme) = value;
        return value.size() <= kMostNameBytes;
    }
    if (key == kOwnTheme || key == kTourOwnTheme) {
        std::vector<std::string>& names = key == kOwnTheme ? p.ownThemes : p.tourOwnThemes;
        names.emplace_back(value);
        return !value.empty() && value.size() <= kMostNameBytes && names.size() <= kMaxOwnThemes;
    }
    if (key == kNormalPoints || key == kSurvivalPoints) {
        const auto number = points(value);
        (key == kNormalPoints ? p.normalPoints : p.survivalPoints) = number.value_or(0);
        return number.has_value();
    }
    if (key == kCorrections) {
        const auto number = wholeNumber(value, 0, std::numeric_limits<std::int16_t>::max());
        p.correctionsLeft = static_cast<int>(number.value_or(0));
        return number.has_value();
    }
    if (key == kTour) {
        const auto number = wholeNumber(value, 0, ThemeCatalogue::kThemes);
        p.tourPosition = static_cast<int>(number.value_or(0));
        return number.has_value();
    }
    if (key == kThemes || key == kTourThemes) {
        const auto themes = themeList(value);
        if (themes) {
            (key == kThemes ? p.selectedThemes : tourCopy) = *themes;
        }
        return themes.has_value();
    }
    // Any other key is a later version's, and no fault.
    return takeCounter(key, value, p.stats);
}

std::string notice(ProgressState state, const fs::path& file, const fs::path& copy) {
    if (copy.empty()) {
        return "No se pudo leer el progreso guardado en " + file.string() +
               "; se empieza de nuevo.";
    }
    const std::string start = state == ProgressState::LaterVersion
                                  ? "El progreso guardado es de una versión más nueva del juego"
                                  : "No se pudo leer el progreso guardado";
    return start + "; se empieza de nuevo. Se guardó una copia en " + copy.string() + ".";
}

} // namespace

fs::path progressFilePath(const fs::path& configFile) {
    fs::path file = configFile;
    file += std::string(kProgressSuffix);
    return file;
}

bool isProgressFileName(const fs::path& file) {
    return file.filename().string().ends_with(kProgressSuffix);
}

std::string progressBytes(const Progress& p) {
    std::string head = std::string(kProgressHeader) + std::to_string(kProgressVersion) + "\n";
    const auto put = [&head](std::string_view key, const std::string& value) {
        head.append(key).append("=").append(value).append("\n");
    };
    put(kNormalPoints, pointsText(p.normalPoints));
    put(kSurvivalPoints, pointsText(p.survivalPoints));
    for (const bool survival : {false, true}) {
        const UserStats::Counters& counters = p.stats.of(survival);
        for (const CounterKey& c : kCounters) {
            put(std::string(survival ? "survival " : "normal ").append(c.name),
                std::to_string(counters.*c.counter));
        }
    }
    put(kCorrections, std::to_string(p.correctionsLeft));
    put(kThemes, themeListText(p.selectedThemes));
    put(kTour, std::to_string(p.tourPosition));
    const auto putName = [&put](std::string_view key, const std::string& name) {
        if (!name.empty() && name.size() <= kMostNameBytes) {
            put(key, oneLine(name));
        }
    };
    for (const std::string& name : p.ownThemes) {
        putName(kOwnTheme, name);
    }
    if (p.tourPosition != 0) {
        put(kTourThemes, themeListText(p.tourCopy));
        for (const std::string& name : p.tourOwnThemes) {
            putName(kTourOwnTheme, name);
        }
        putName(kTourAtOwnTheme, p.tourOwnTheme);
    }
    putName(kLastOwnTheme, p.lastOwnTheme);
    // The newest phrases that fit; the history itself runs without end.
    std::vector<std::string> entries;
    std::string_view rest = p.history;
    while (!p.history.empty()) {
        const std::size_t end = rest.find("\r\n");
        entries.emplace_back("history=" + oneLine(rest.substr(0, end)) + "\n");
        if (end == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(end + 2);
    }
    std::size_t size = head.size();
    std::size_t first = entries.size();
    while (first > 0 && size + entries[first - 1].size() <= kMaxProgressBytes) {
        size += entries[--first].size();
    }
    for (std::size_t i = first; i < entries.size(); ++i) {
        head += entries[i];
    }
    return head;
}

ParsedProgress parseProgress(std::string_view bytes) {
    ParsedProgress parsed;
    if (bytes.size() > kMaxProgressBytes || !validUtf8(bytes)) {
        return parsed;
    }
    // An editor may have put a byte order mark in front.
    if (bytes.starts_with("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
    }
    const std::vector<std::string_view> lines = splitLines(bytes);
    if (lines.empty() || !lines.front().starts_with(kProgressHeader)) {
        return parsed;
    }
    const auto version = wholeNumber(lines.front().substr(kProgressHeader.size()), 1,
                                     std::numeric_limits<int>::max());
    if (!version) {
        return parsed;
    }
    if (*version > kProgressVersion) {
        parsed.state = ProgressState::LaterVersion;
        return parsed;
    }
    Progress p;
    std::vector<std::string_view> history;
    std::array<bool, kThemeFlags> tour{};
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const std::string_view line = lines[i];
        if (line.find_first_not_of(" \t") == std::string_view::npos || line.front() == '#') {
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos || hasControl(line) ||
            !takeLine(line.substr(0, equals), line.substr(equals + 1), p, history, tour)) {
            return parsed;
        }
    }
    if (p.tourPosition != 0) {
        p.tourCopy = tour;
    } else {
        p.tourOwnThemes.clear();
        p.tourOwnTheme.clear();
    }
    for (std::size_t i = 0; i < history.size(); ++i) {
        p.history.append(i == 0 ? "" : "\r\n").append(history[i]);
    }
    parsed.state = ProgressState::Read;
    parsed.progress = std::move(p);
    return parsed;
}

ProgressRead readProgressFile(const fs::path& file) {
    ProgressRead read;
    if (configFileMissing(file)) {
        return read;
    }
    std::optional<std::string> bytes;
    std::error_code error;
    // A folder, a device or a pipe is no progress, and opening a pipe would
    // hold the start up. One byte past the bound tells a larger file.
    std::ifstream in;
    if (fs::is_regular_file(file, error)) {
        in.open(file, std::ios::binary);
    }
    if (in) {
        std::string buffer(kMaxProgressBytes + 1, '\0');
        in.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        if (!in.bad()) {
            buffer.resize(static_cast<std::size_t>(in.gcount()));
            bytes = std::move(buffer);
        }
    }
    ParsedProgress parsed = bytes ? parseProgress(*bytes) : ParsedProgress{};
    read.state = parsed.state;
    read.progress = std::move(parsed.progress);
    if (read.state != ProgressState::Read) {
        if (!keepCopyBeside(resolveLinks(file), &read.copy)) {
            read.copy.clear();
        }
        read.notice = notice(read.state, file, read.copy);
    }
    return read;
}

bool writeProgressFile(const fs::path& path, const Progress& progress) {
    const fs::path file = resolveLinks(path);
    if (file.empty() || !file.has_filename()) {
        return false;
    }
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (fs::exists(status)) {
        if (!fs::is_regular_file(status)) {
            return false;
        }
        // What the game cannot read back is kept before it goes.
        const ProgressRead there = readProgressFile(file);
        if (there.state != ProgressState::Read && there.copy.empty()) {
            return false;
        }
    } else if (file.has_parent_path()) {
        fs::create_directories(file.parent_path(), error);
        if (error) {
            return false;
        }
    }
    return replaceFile(file, progressBytes(progress));
}

fs::path currentProgressPath(const SharedState& shared) {
    return progressFilePath(shared.currentSession().filePath);
}

namespace {

// The name of an own theme by its number in this run; empty for a number
// no file holds.
std::string ownThemeName(const SharedState& shared, int theme) {
    const auto index = static_cast<std::size_t>(theme - ThemeCatalogue::kThemes - 1);
    return index < shared.ownThemes.size() ? shared.ownThemes[index].name : std::string();
}

} // namespace

Progress progressOf(const SharedState& shared) {
    const SessionSlot& slot = shared.current();
    Progress p;
    p.normalPoints = shared.normalPoints;
    p.survivalPoints = shared.survivalPoints;
    p.stats = slot.stats;
    p.correctionsLeft = shared.correctionsLeft;
    p.history = shared.history;
    p.tourPosition = shared.tourPosition;
    p.selectedThemes = slot.selectedThemes;
    p.tourCopy = slot.tourCopy;
    // The player's own themes by name, their numbers cleared.
    for (int theme = ThemeCatalogue::kThemes + 1; theme < kThemeFlags; ++theme) {
        const auto flag = static_cast<std::size_t>(theme);
        const std::string name = ownThemeName(shared, theme);
        if (p.selectedThemes[flag] && !name.empty()) {
            p.ownThemes.push_back(name);
        }
        if (p.tourCopy[flag] && p.tourPosition != 0 && !name.empty()) {
            p.tourOwnThemes.push_back(name);
        }
        p.selectedThemes[flag] = p.tourCopy[flag] = false;
    }
    if (p.tourPosition > ThemeCatalogue::kThemes) {
        p.tourOwnTheme = ownThemeName(shared, p.tourPosition);
        p.tourPosition = ThemeCatalogue::kThemes;
    }
    p.lastOwnTheme = slot.ownThemeName;
    return p;
}

namespace {

// The tour's place, on an own theme when its file is still there.
int tourPositionOf(const SharedState& shared, const Progress& p) {
    const int own = ownThemeNumber(shared.ownThemes, p.tourOwnTheme);
    return own > 0 ? own : p.tourPosition;
}

} // namespace

void takeProgress(SharedState& shared, const Progress& p) {
    fillSlotProgress(shared, shared.current(), p);
    shared.normalPoints = p.normalPoints;
    shared.survivalPoints = p.survivalPoints;
    shared.correctionsLeft = p.correctionsLeft;
    shared.history = p.history;
    shared.tourPosition = tourPositionOf(shared, p);
    // Themes chosen in an earlier run are as good as chosen in this one: the
    // automatic phrase may keep drawing from them.
    shared.themeChosen = shared.themeChosen || anyTheme(shared.current().selectedThemes) ||
                         anyTheme(shared.current().tourCopy);
}

void fillSlotProgress(const SharedState& shared, SessionSlot& slot, const Progress& p) {
    UserSession& s = slot.record;
    s.points = formatNumber(p.normalPoints);
    s.survivalPoints = formatNumber(p.survivalPoints);
    s.history = p.history;
    s.corrections = std::to_string(p.correctionsLeft);
    s.tour = std::to_string(tourPositionOf(shared, p));
    slot.stats = p.stats;
    slot.selectedThemes = p.selectedThemes;
    slot.tourCopy = p.tourCopy;
    // An own theme whose file has gone is no choice any more.
    for (const std::string& name : p.ownThemes) {
        if (const int own = ownThemeNumber(shared.ownThemes, name); own > 0) {
            slot.selectedThemes[static_cast<std::size_t>(own)] = true;
        }
    }
    for (const std::string& name : p.tourOwnThemes) {
        if (const int own = ownThemeNumber(shared.ownThemes, name); own > 0) {
            slot.tourCopy[static_cast<std::size_t>(own)] = true;
        }
    }
    slot.ownThemeName = p.lastOwnTheme;
}

Progress readUserProgress(SharedState& shared, const SessionSlot& slot) {
    ProgressRead read = readProgressFile(progressFilePath(slot.record.filePath));
    if (!read.notice.empty()) {
        shared.progressNotice = read.notice;
    }
    return read.progress;
}

bool writeProgress(SharedState& shared) {
    return writeProgressFile(currentProgressPath(shared), progressOf(shared));
}

bool saveProgress(SharedState& shared, Dialogs& dialogs) {
    const std::string path = currentProgressPath(shared).string();
    if (writeProgress(shared)) {
        shared.saveFailuresTold.erase(path);
        return true;
    }
    // After every game: once is enough for a folder that stays read-only.
    if (shared.saveFailuresTold.insert(path).second) {
        dialogs.information("No se pudo guardar el progreso en " + path + ".");
    }
    return false;
}

void tellProgressNotice(SharedState& shared, Dialogs& dialogs) {
    if (!shared.progressNotice.empty()) {
        const std::string text = std::move(shared.progressNotice);
        shared.progressNotice.clear();
        dialogs.information(text);
    }
}

} // namespace quillora
