// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/design/DesignModel.h"

#include "look/Picture.h"
#include "models/design/DesignedBoard.h"
#include "ports/Dialogs.h"
#include "ports/PictureLoader.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quillora {

namespace fs = std::filesystem;

namespace {

constexpr int kFree = 0, kBlackInk = 1, kColoured = 2, kBlackShadow = 3, kBlueInk = 4;

// "~" and "~/..." are where a Linux user's fingers go for the home folder.
std::string expandHome(const std::string& typed, const std::string& home) {
    if (typed == "~") {
        return home;
    }
    if (typed.starts_with("~/")) {
        return joinPicturePath(home, typed.substr(2));
    }
    return typed;
}

// A folder as the lists show it: no "." or "..", no separator at the end.
std::string tidyFolder(const std::string& folder) {
    std::string tidy = fs::path(folder).lexically_normal().string();
    while (tidy.size() > 1 && tidy.ends_with('/')) {
        tidy.pop_back();
    }
    return tidy;
}

} // namespace

int styleItemOf(int letterStyle) {
    for (std::size_t item = 0; item < kStyleItems.size(); ++item) {
        if (kStyleItems[item].value == letterStyle) {
            return static_cast<int>(item);
        }
    }
    return 0;
}

std::string joinPicturePath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with('/')) {
        path += '/';
    }
    path += name;
    return path;
}

std::string userPictureFolder(const std::string& pictures, const std::string& home) {
    std::error_code error;
    return !pictures.empty() && fs::is_directory(pictures, error) ? pictures : home;
}

DesignModel::DesignModel(DesignedBoard& board, SharedState& shared, Dialogs& dialogs,
                         PictureLoader& loader, std::string pictures, std::string home)
    : m_board(board), m_shared(shared), m_dialogs(dialogs), m_loader(loader),
      m_pictures(std::move(pictures)), m_home(std::move(home)) {}

DesignModel::~DesignModel() {
    if (m_open) {
        m_board.handPicturesTo({});
    }
}

void DesignModel::open() {
    m_open = true;
    m_board.handPicturesTo([this](const std::string& path) {
        m_address = path;
        loadTypedPicture();
    });
    const Settings& s = m_shared.settings;
    bool shownWhole = true;
    try {
        chooseStyle(styleItemOf(s.letterStyle));
        listPictures();
        m_picture = s.backgroundPicture;
        m_folder = s.pictureFolder;
        const std::string shown = m_board.shownPicture();
        if (!shown.empty()) {
            shownWhole = m_loader.load(shown, s.realSize);
            m_preview = shownWhole ? shown : std::string();
        }
        for (const Toggle which : {Toggle::Size, Toggle::White, Toggle::Opaque, Toggle::Letter}) {
            if (setting(which)) {
                look(which).lit = true;
            }
        }
        // A picture dropped on the board before the window opened is the
        // window's to keep or drop, as if it had been dropped here.
        if (shownWhole && !shown.empty() && shown != s.backgroundPicture) {
            m_picture = shown;
            m_folder = fs::path(shown).parent_path().string();
            m_address = shown;
        }
    } catch (const std::exception&) {
        shownWhole = false;
    }
    if (!shownWhole) {
        m_dialogs.information("Hubo un problema al cargar el diseño de esta ventana.");
    }
}

void DesignModel::close() {
    if (!m_open) {
        return;
    }
    m_open = false;
    m_board.handPicturesTo({});
    m_board.showPicture(m_shared.settings.backgroundPicture);
}

bool DesignModel::save() {
    Settings& s = m_shared.settings;
    const std::string storedPicture = s.backgroundPicture;
    const std::string storedFolder = s.pictureFolder;
    try {
        s.backgroundPicture = m_picture;
        s.pictureFolder = m_folder;
        if (writeSettings(m_shared)) {
            close();
            return true;
        }
    } catch (const std::exception&) {
    }
    // What did not reach the disk is not kept: the picture stays a trial
    // that closing the window takes back.
    s.backgroundPicture = storedPicture;
    s.pictureFolder = storedFolder;
    m_dialogs.information("El diseño no se guardó, para ver la causa véalo en Ayuda.");
    return false;
}

Rgb DesignModel::buttonColour() const {
    return m_shared.palette.gameColour;
}

// --- the letter style ---------------------------------------------------------------

void DesignModel::chooseStyle(int item) {
    if (item < 0 || item >= static_cast<int>(kStyleItems.size())) {
        return;
    }
    m_styleItem = item;
    Settings& s = m_shared.settings;
    s.letterStyle = kStyleItems[static_cast<std::size_t>(item)].value;
    ToggleLook& opaque = look(Toggle::Opaque);
    ToggleLook& letter = look(Toggle::Letter);
    // The other styles paint the cells their own way: their rectangles show
    // what the style does, not the flags, which wait untouched for "Libre".
    // Back in "Libre" the rectangles show the flags again, so a toggle never
    // lights while turning its flag off.
    switch (s.letterStyle) {
    case kBlackInk:
    case kBlueInk:
        s.opaqueLetters = false;
        opaque = {false, false};
        letter = {false, false};
        break;
    case kColoured:
        s.opaqueLetters = true;
        opaque = {false, true};
        letter = {false, false};
        break;
    case kBlackShadow:
        s.opaqueLetters = true;
        opaque = {false, true};
        letter = {false, true};
        break;
    case kFree:
    default:
        opaque = {true, s.opaqueLetters};
        letter = {true, s.whiteLetters};
        break;
    }
}

DesignModel::ToggleLook DesignModel::toggle(Toggle which) const {
    return m_toggles[static_cast<std::size_t>(which)];
}

DesignModel::ToggleLook& DesignModel::look(Toggle which) {
    return m_toggles[static_cast<std::size_t>(which)];
}

bool& DesignModel::setting(Toggle which) {
    Settings& s = m_shared.settings;
    switch (which) {
    case Toggle::Size:
        return s.realSize;
    case Toggle::White:
        return s.whiteLines;
    case Toggle::Opaque:
        return s.opaqueLetters;
    case Toggle::Letter:
        break;
    }
    return s.whiteLetters;
}

void DesignModel::flip(Toggle which) {
    ToggleLook& toggleLook = look(which);
    if (!toggleLook.enabled) {
        return;
    }
    bool& on = setting(which);
    on = !on;
    toggleLook.lit = on;
}

void DesignModel::tickStyle() {
    m_board.applyLetterStyle();
}

// --- folders ---------------------------------------------------------------------------

void DesignModel::listPictures() {
    folderChanged(m_pictures);
}

void DesignModel::typeAddress(const std::string& text) {
    m_address = text;
    m_goShown = true;
}

void DesignModel::goToAddress() {
    if (!m_goShown) {
        ++m_listReads;
        return;
    }
    // A picture typed or pasted in is loaded as a dropped one would be. A
    // place that is neither is not gone to, and not worth a message: the
    // player sees the lists stay where they were.
    const std::string target = expandHome(m_address, m_home);
    std::error_code error;
    if (!fs::path(target).is_absolute()) {
        return;
    }
    if (fs::is_directory(target, error)) {
        folderChanged(tidyFolder(target));
    } else if (isPictureName(target)) {
        m_address = target;
        loadTypedPicture();
    }
}

void DesignModel::folderChanged(const std::string& folder) {
    m_listFolder = folder;
    m_folder = folder;
    m_address = folder;
    m_goShown = false;
}

// --- pictures ----------------------------------------------------------------------------

bool DesignModel::previewRealSize() const {
    return m_shared.settings.realSize;
}

bool DesignModel::tryPicture(const std::string& path) {
    // A path the configuration file cannot hold would come back from it
    // as another path, and the picture would be gone at the next start.
    if (storableText(path) != path || !m_loader.load(path, m_shared.settings.realSize)) {
        return false;
    }
    m_preview = path;
    m_picture = path;
    m_listRefused = false;
    m_board.showPicture(path);
    return true;
}

void DesignModel::chooseFile(const std::string& name) {
    if (tryPicture(joinPicturePath(m_listFolder, name))) {
        m_folder = m_listFolder;
    } else {
        m_listRefused = true;
    }
}

void DesignModel::loadTypedPicture() {
    if (!isPictureName(m_address)) {
        return;
    }
    if (tryPicture(m_address)) {
        m_folder = fs::path(m_address).parent_path().string();
    } else {
        m_listRefused = true;
    }
}

void DesignModel::removePicture() {
    m_preview.clear();
    m_picture.clear();
    m_board.showPicture({});
}

} // namespace quillora
