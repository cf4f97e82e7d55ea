// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quillora {

class Dialogs;
class NetworkCheck;
class Web;

// Where the game sends the player. The defaults come from the build; the
// help page is the one installed with the game unless the build names a web
// address for it.
struct Endpoints {
    std::string search;
    std::string encyclopedia;
    std::string fontDownload;
    std::string help;

    static Endpoints fromBuild(std::string installedHelpPage);
};

inline constexpr const char* kNoNetwork = "Se requiere una conexión a Internet, intente más tarde.";
inline constexpr const char* kNoNetworkForDownload =
    "Se requiere una conexión a Internet para descargar, intente más tarde.";

// A text as one piece of a URL: every byte but letters, digits and "-._~"
// is written as %XX, so "&", "#", "?", "%" and blanks reach the page as the
// player's own words instead of cutting the address short.
std::string percentEncoded(std::string_view utf8);

// The page "¿Qué es eso?" opens: the search engine, with the text put in
// twice, or the encyclopedia's article.
std::string lookUpUrl(std::string_view text, bool encyclopedia, const Endpoints& endpoints);

// True for an address that needs the network to be reached.
bool isWebAddress(std::string_view url);

// What the game hands to the browser: the look-ups, the help and the font.
// Each checks the network first where it needs one, and tells the player
// when there is none.
class WebLookUp {
public:
    WebLookUp(NetworkCheck& network, Web& web, Dialogs& dialogs, Endpoints endpoints);

    // openLookUp: the text, already in small letters.
    void openLookUp(std::string_view text, bool useEncyclopedia);
    // openHelp: F1 and "Ayuda".
    void openHelp();
    // "DESCARGAR": true when the download was handed to the browser.
    bool downloadFont();

    const Endpoints& endpoints() const { return m_endpoints; }

private:
    bool online(const char* message);

    NetworkCheck& m_network;
    Web& m_web;
    Dialogs& m_dialogs;
    Endpoints m_endpoints;
};

} // namespace quillora
