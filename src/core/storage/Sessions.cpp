// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Sessions.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"
#include "storage/ProgressFile.h"
#include "words/Text.h"

#include <filesystem>

namespace quillora {

namespace {

const std::string kBusy = "No se puede cambiar de sesión, termine la partida.";
const std::string kFull = "No se pueden agregar más sesiones.";

std::string defaultName(int slot) {
    return "Usuario " + std::to_string(slot + 1);
}

// Only a small text file can be a configuration file. Pictures, programs,
// folders and anything unreadable are passed over without being touched.
bool looksLikeConfigFile(const std::string& path) {
    // Nor is a user's progress, though it is small text too.
    if (isProgressFileName(path)) {
        return false;
    }
    const auto text = readConfigText(path);
    return text && text->whole;
}

} // namespace

Sessions::Sessions(SharedState& shared, Dialogs& dialogs, Random& random)
    : m_shared(shared), m_dialogs(dialogs), m_random(random) {}

void Sessions::initialise(SharedState& shared) {
    shared.sessions[0].record.filePath = shared.mainConfigPath().string();
}

void Sessions::saveCurrent() {
    UserSession& s = m_shared.currentSession();
    s.points = formatNumber(m_shared.normalPoints);
    s.survivalPoints = formatNumber(m_shared.survivalPoints);
    s.theme = std::to_string(m_shared.settings.theme);
    s.history = m_shared.history;
    s.corrections = std::to_string(m_shared.correctionsLeft);
    s.key = m_shared.key;
    s.locked = m_shared.locked ? "1" : "0";
    s.tour = std::to_string(m_shared.tourPosition);
}

void Sessions::loadCurrent() {
    const UserSession& s = m_shared.currentSession();
    m_shared.normalPoints = leadingNumber(s.points);
    m_shared.survivalPoints = leadingNumber(s.survivalPoints);
    m_shared.settings.theme = leadingCount(s.theme);
    m_shared.history = s.history;
    m_shared.correctionsLeft = leadingCount(s.corrections);
    m_shared.key = s.key;
    if (s.locked == "1") {
        m_shared.locked = true;
    } else if (s.locked == "0") {
        m_shared.locked = false;
    }
    m_shared.tourPosition = leadingCount(s.tour);
    m_shared.sessionLoaded = true;
}

int Sessions::freeSlot() const {
    for (int slot = 1; slot < kSessionSlots; ++slot) {
        if (!m_shared.sessions[static_cast<std::size_t>(slot)].record.inUse()) {
            return slot;
        }
    }
    return -1;
}

void Sessions::fillNewSlot(const std::string& path, const std::string& name) {
    UserSession& s = m_shared.currentSession();
    s = UserSession{};
    s.survivalPoints = "1000";
    s.theme = "1";
    s.corrections = "3";
    s.filePath = path;
    s.tour = "0";
    s.displayName = name;
    // A user who played here before finds what they had left.
    fillSlotProgress(m_shared, m_shared.current(), readUserProgress(m_shared, m_shared.current()));
}

bool Sessions::add(const std::string& typedName, bool manyErrors, std::string& shownName) {
    if (manyErrors) {
        m_dialogs.exclamation(kBusy);
        return false;
    }
    saveCurrent();
    const int slot = freeSlot();
    if (slot < 0) {
        m_dialogs.error(kFull);
        return false;
    }
    // The user box lets through only what line 15 can hold; a name from
    // anywhere else is held to the same, so the file's name and the name
    // written in it agree.
    std::string name = storableText(typedName);
    if (name.empty() || name == "Nombre") {
        name = defaultName(slot);
    }
    const std::filesystem::path path = sessionFilePath(m_shared.dataFolder, name);
    if (!fileNameFits(path)) {
        m_dialogs.exclamation("El nombre es demasiado largo.");
        return false;
    }
    m_shared.currentSlot = slot;
    shownName = name;
    // A file of that name is a user who played here before: it is theirs,
    // taken as it stands and never replaced by a fresh one.
    if (configFileMissing(path)) {
        reportSave(m_shared, m_dialogs, path.string(), writeNewUserFile(path, name, m_random));
    } else {
        m_dialogs.information(name + " ya tiene una configuración guardada, se usará esa.");
    }
    fillNewSlot(path.string(), name);
    loadCurrent();
    return true;
}

bool Sessions::addFromFiles(const std::vector<std::string>& paths, bool manyErrors) {
    if (manyErrors) {
        m_dialogs.exclamation(kBusy);
        return false;
    }
    bool added = false;
    for (const std::string& path : paths) {
        if (!looksLikeConfigFile(path)) {
            continue;
        }
        saveCurrent();
        const int slot = freeSlot();
        if (slot < 0) {
            m_dialogs.error(kFull);
            continue;
        }
        m_shared.currentSlot = slot;
        const std::vector<std::string> lines =
            readConfigLines(path).value_or(std::vector<std::string>{});
        std::string name = lines.size() >= 15 ? lines[14] : std::string();
        if (name.empty()) {
            name = defaultName(slot);
            reportSave(m_shared, m_dialogs, path, writeNewUserFile(path, name, m_random));
        }
        fillNewSlot(path, name);
        loadCurrent();
        added = true;
    }
    return added;
}

bool Sessions::switchTo(int slot, bool manyErrors) {
    if (manyErrors) {
        m_dialogs.exclamation(kBusy);
        return false;
    }
    if (slot == m_shared.currentSlot) {
        m_dialogs.information("Es el usuario actual, seleccione otro.");
        return false;
    }
    if (slot < 0 || slot >= kSessionSlots ||
        !m_shared.sessions[static_cast<std::size_t>(slot)].record.inUse()) {
        return false;
    }
    saveCurrent();
    m_shared.currentSlot = slot;
    m_shared.skipStartDefaults = true;
    loadCurrent();
    return true;
}

bool Sessions::deleteCurrent() {
    const int current = m_shared.currentSlot;
    if (current < 1) {
        return false;
    }
    int last = current;
    for (int slot = current + 1; slot < kSessionSlots; ++slot) {
        if (!m_shared.sessions[static_cast<std::size_t>(slot)].record.inUse()) {
            break;
        }
        m_shared.sessions[static_cast<std::size_t>(slot - 1)] =
            m_shared.sessions[static_cast<std::size_t>(slot)];
        last = slot;
    }
    // Everything the user kept goes with the slot, so a later slot moves down whole.
    m_shared.sessions[static_cast<std::size_t>(last)] = SessionSlot{};
    m_shared.currentSlot = 0;
    // The restart that follows starts the main user afresh in memory; what
    // they have kept on disk is theirs to come back to.
    m_shared.progressToRead = true;
    loadCurrent();
    return true;
}

std::vector<Sessions::Entry> Sessions::entries() const {
    std::vector<Entry> list;
    for (int slot = 0; slot < kSessionSlots; ++slot) {
        const UserSession& s = m_shared.sessions[static_cast<std::size_t>(slot)].record;
        if (s.inUse()) {
            list.push_back({slot, s.displayName});
        }
    }
    return list;
}

} // namespace quillora
