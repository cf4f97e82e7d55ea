// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigImport.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace quillora {

namespace {

namespace fs = std::filesystem;

// The older installations lived in "C:\Program Files"; the questions still
// name the place their players knew.
constexpr const char* kAskVersion5 =
    "¿Desea copiar la configuración que hay en C:\\Program Files a esta?";
constexpr const char* kAskVersion4 = "¿Desea copiar la configuración de la versión 4 a la 5?";
constexpr const char* kCopyFailed =
    "La copia de la configuración anterior no se logró hacer, intente más tarde.";

// The old file's bytes, or nothing when it is no file the game could have
// written: then there is nothing to offer.
std::optional<std::string> readOldFile(const fs::path& path) {
    auto bytes = readConfigBytes(path);
    if (bytes && bytes->size() > kMaxConfigBytes) {
        return std::nullopt;
    }
    return bytes;
}

// The old lines as the game itself ends them, so a file kept by another
// system or an editor loads like one of ours. What lies between the line
// ends is copied byte for byte: the old versions wrote the same code page.
std::string withGameLineEnds(std::string bytes) {
    dropEndOfFileMark(bytes);
    std::string text;
    bool first = true;
    for (std::string_view line : splitLines(bytes)) {
        if (!first) {
            text += "\r\n";
        }
        first = false;
        text += line;
    }
    return text + "\r\n";
}

// Copies an old file over the main one. The main file is written in one step: a copy cut
// short would load as a configuration with its last lines missing.
bool copyToMainFile(const std::string& oldBytes, const fs::path& mainFile) {
    // A player who linked the main file elsewhere wants it kept there.
    const fs::path file = resolveLinks(mainFile);
    if (file.empty()) {
        return false;
    }
    std::error_code error;
    if (file.has_parent_path()) {
        fs::create_directories(file.parent_path(), error);
        if (error) {
            return false;
        }
    }
    return replaceFile(file, withGameLineEnds(oldBytes));
}

// Offers one older version's file. Nothing when the old file is not there, so that the
// next older version may be asked about.
std::optional<ImportOutcome> offer(SharedState& shared, Dialogs& dialogs, const char* oldName,
                                   const char* question) {
    const auto bytes = readOldFile(shared.dataFolder / oldName);
    if (!bytes) {
        return std::nullopt;
    }
    if (!dialogs.yesNo(question)) {
        shared.importDeclined = true;
        return ImportOutcome::Declined;
    }
    if (copyToMainFile(*bytes, shared.mainConfigPath())) {
        // Options read before the copy are no longer what the file holds.
        if (shared.settingsFile == shared.mainConfigPath().string()) {
            shared.settingsFile.clear();
        }
        return ImportOutcome::Copied;
    }
    // A save that failed: told like the game's other failed saves. Nothing
    // is recorded, so the next showing of the menu asks again.
    dialogs.information(kCopyFailed);
    return ImportOutcome::Failed;
}

} // namespace

ImportOutcome offerOldConfig(SharedState& shared, Dialogs& dialogs) {
    // A main file the game cannot even look at counts as missing, like any
    // file it cannot read.
    std::error_code error;
    if (shared.importDeclined || fs::exists(fs::status(shared.mainConfigPath(), error))) {
        return ImportOutcome::NotOffered;
    }
    if (const auto outcome = offer(shared, dialogs, kVersion5ConfigName, kAskVersion5)) {
        return *outcome;
    }
    return offer(shared, dialogs, kVersion4ConfigName, kAskVersion4)
        .value_or(ImportOutcome::NotOffered);
}

} // namespace quillora
