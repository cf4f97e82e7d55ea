// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/WebLookUp.h"

#include "desktop/BuildConfig.h"
#include "ports/Dialogs.h"
#include "ports/NetworkCheck.h"
#include "ports/Web.h"

namespace quillora {

Endpoints Endpoints::fromBuild(std::string installedHelpPage) {
    std::string help = build::kHelpUrl;
    return {build::kSearchUrl, build::kEncyclopediaUrl, build::kFontDownloadUrl,
            help.empty() ? std::move(installedHelpPage) : help};
}

std::string percentEncoded(std::string_view utf8) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(utf8.size() * 3);
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        const bool unreserved = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
                                (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' ||
                                byte == '_' || byte == '~';
        if (unreserved) {
            out += c;
        } else {
            out += '%';
            out += kHex[byte >> 4];
            out += kHex[byte & 0x0F];
        }
    }
    return out;
}

std::string lookUpUrl(std::string_view text, bool encyclopedia, const Endpoints& endpoints) {
    const std::string word = percentEncoded(text);
    if (encyclopedia) {
        return endpoints.encyclopedia + word;
    }
    return endpoints.search + word + "&qs=n&form=QBRE&filt=all&pq=" + word + "&sc=0-0&sp=-1&sk=";
}

bool isWebAddress(std::string_view url) {
    return url.starts_with("http://") || url.starts_with("https://");
}

WebLookUp::WebLookUp(NetworkCheck& network, Web& web, Dialogs& dialogs, Endpoints endpoints)
    : m_network(network), m_web(web), m_dialogs(dialogs), m_endpoints(std::move(endpoints)) {}

bool WebLookUp::online(const char* message) {
    if (m_network.networkAlive()) {
        return true;
    }
    m_dialogs.information(message);
    return false;
}

void WebLookUp::openLookUp(std::string_view text, bool useEncyclopedia) {
    if (online(kNoNetwork)) {
        m_web.openUrl(lookUpUrl(text, useEncyclopedia, m_endpoints));
    }
}

void WebLookUp::openHelp() {
    // The page that comes with the game reads without a network.
    if (!isWebAddress(m_endpoints.help) || online(kNoNetwork)) {
        m_web.openUrl(m_endpoints.help);
    }
}

bool WebLookUp::downloadFont() {
    if (!online(kNoNetworkForDownload)) {
        return false;
    }
    m_web.openUrl(m_endpoints.fontDownload);
    return true;
}

} // namespace quillora
