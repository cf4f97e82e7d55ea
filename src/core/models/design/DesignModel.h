// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <array>
#include <string>
#include <string_view>

namespace quillora {

class Dialogs;
class PictureLoader;
class DesignedBoard;
struct SharedState;

// One entry of the style list: its caption and the style it stores.
struct StyleItem {
    std::string_view name;
    int value;
};
// The list reads from the plainest look to the boldest, so "Tinta Azul"
// sits beside "Tinta Negra" though it is stored as 4.
inline constexpr std::array<StyleItem, 5> kStyleItems{
    {{"Libre", 0}, {"Tinta Negra", 1}, {"Tinta Azul", 4}, {"Colorido", 2}, {"Sombra Negra", 3}}};
// The list item of a stored style; a style out of range shows as "Libre".
int styleItemOf(int letterStyle);

// A picture's full path: the folder, one separator, the file's name.
std::string joinPicturePath(std::string_view folder, std::string_view name);

// The folder the design window browses first: the user's pictures folder
// where there is one, else the home folder.
std::string userPictureFolder(const std::string& pictures, const std::string& home);

// "Diseño:": the board's background picture, chosen from the disk, and the
// letter style with its flags. It works on the live board behind it: every
// choice shows there at once, and only "Guardar y cerrar" stores the picture.
class DesignModel {
public:
    // The style tick: the board follows the style while the window is open.
    static constexpr int kStyleTickMs = 100;

    // The toggles: "&Tamaño Real", "Lineas &blancas", "&Sombras opacas",
    // "&Letras blancas".
    enum class Toggle { Size, White, Opaque, Letter };
    // Whether a toggle can be used, and whether its rectangle is filled.
    struct ToggleLook {
        bool enabled = true;
        bool lit = false;
    };

    // `pictures` is the user's pictures folder, `home` the home folder, which
    // a typed "~" stands for.
    DesignModel(DesignedBoard& board, SharedState& shared, Dialogs& dialogs, PictureLoader& loader,
                std::string pictures, std::string home);
    ~DesignModel();
    DesignModel(const DesignModel&) = delete;
    DesignModel& operator=(const DesignModel&) = delete;

    // The window's opening. A picture the preview cannot show is told once,
    // and the window stays as far as it got.
    void open();
    // The close box: an unsaved picture leaves the board; the style and the
    // flags stay in effect until they are saved or the options read again.
    void close();
    // "Guardar y cerrar": true when the design was stored and the window
    // closes.
    bool save();
    bool isOpen() const { return m_open; }
    // The buttons and toggles wear the game colour; "&Quitar fondo" the red
    // of a wrong letter.
    Rgb buttonColour() const;
    Rgb removeColour() const { return kRedLamp; }

    // --- the letter style ---------------------------------------------------------
    int styleItem() const { return m_styleItem; }
    // Option0 ... Option4.
    void chooseStyle(int item);
    ToggleLook toggle(Toggle which) const;
    void flip(Toggle which);
    // The style tick: the board takes the letter style and its background.
    void tickStyle();
    bool styleTimerRunning() const { return m_open; }

    // --- folders ------------------------------------------------------------------
    // The address box.
    const std::string& address() const { return m_address; }
    void typeAddress(const std::string& text);
    // goToAddress, and Enter in the address: a typed folder is gone to, a typed
    // picture loaded (loadTypedPicture), a shown folder read again from the disk.
    void goToAddress();
    bool goShown() const { return m_goShown; }
    const char* goTooltip() const {
        return m_goShown ? " Ir a Esta Dirección " : " Actualizar Dirección ";
    }
    // Dir1 moved to another folder.
    void folderChanged(const std::string& folder);
    // The folder Dir1 and File1 show, and a count that grows each time they
    // must read it again.
    const std::string& listFolder() const { return m_listFolder; }
    int listReads() const { return m_listReads; }

    // --- pictures -----------------------------------------------------------------
    // A file chosen in File1, by its name.
    void chooseFile(const std::string& name);
    // A picture path in the address box, as a drop on the board puts it there.
    void loadTypedPicture();
    // "&Quitar fondo".
    void removePicture();
    bool removeShown() const { return !m_picture.empty(); }
    // File1 turns red when the file chosen cannot be shown.
    bool listRefused() const { return m_listRefused; }
    // What Image1 shows, and whether at the real size.
    const std::string& preview() const { return m_preview; }
    bool previewRealSize() const;
    // The window's state, stored by "Guardar y cerrar" as `fondo` and
    // `pictureFolder`.
    const std::string& picture() const { return m_picture; }
    const std::string& folder() const { return m_folder; }

private:
    void listPictures();
    bool tryPicture(const std::string& path);
    bool& setting(Toggle which);
    ToggleLook& look(Toggle which);

    DesignedBoard& m_board;
    SharedState& m_shared;
    Dialogs& m_dialogs;
    PictureLoader& m_loader;
    std::string m_pictures;
    std::string m_home;
    bool m_open = false;
    int m_styleItem = 0;
    std::array<ToggleLook, 4> m_toggles{};
    std::string m_address;
    bool m_goShown = false;
    std::string m_listFolder;
    int m_listReads = 0;
    std::string m_picture;
    std::string m_folder;
    std::string m_preview;
    bool m_listRefused = false;
};

} // namespace quillora
