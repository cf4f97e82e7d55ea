// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/Text.h"

#include <cmath>
#include <cstdio>

namespace quillora {

std::u32string toU32(std::string_view utf8) {
    std::u32string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        int extra = 0;
        char32_t cp = lead;
        if (lead >= 0xF0) {
            extra = 3;
            cp = lead & 0x07;
        } else if (lead >= 0xE0) {
            extra = 2;
            cp = lead & 0x0F;
        } else if (lead >= 0xC0) {
            extra = 1;
            cp = lead & 0x1F;
        } else if (lead >= 0x80) {
            // A stray continuation byte: keep going rather than lose the rest.
            out.push_back(U'\uFFFD');
            ++i;
            continue;
        }
        ++i;
        for (int k = 0; k < extra && i < utf8.size(); ++k, ++i) {
            cp = (cp << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
        }
        out.push_back(cp);
    }
    return out;
}

std::string toUtf8(char32_t ch) {
    std::string out;
    if (ch < 0x80) {
        out.push_back(static_cast<char>(ch));
    } else if (ch < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (ch >> 6)));
        out.push_back(static_cast<char>(0x80 | (ch & 0x3F)));
    } else if (ch < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (ch >> 12)));
        out.push_back(static_cast<char>(0x80 | ((ch >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (ch & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (ch >> 18)));
        out.push_back(static_cast<char>(0x80 | ((ch >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((ch >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (ch & 0x3F)));
    }
    return out;
}

std::string toUtf8(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char32_t ch : text) {
        out += toUtf8(ch);
    }
    return out;
}

std::size_t charCount(std::string_view utf8) {
    std::size_t n = 0;
    for (char c : utf8) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
            ++n;
        }
    }
    return n;
}

std::string formatNumber(double value) {
    if (std::nearbyint(value) == value && std::fabs(value) < 1e15) {
        return std::to_string(static_cast<long long>(value));
    }
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.15g", value);
    return buffer;
}

std::string lowerCase(std::string_view utf8) {
    std::u32string text = toU32(utf8);
    for (char32_t& c : text) {
        if ((c >= U'A' && c <= U'Z') || (c >= U'\u00C0' && c <= U'\u00DE' && c != U'\u00D7')) {
            c += 0x20;
        } else if (c == U'\u0152' || c == U'\u0160' || c == U'\u017D') {
            c += 1;
        } else if (c == U'\u0178') {
            c = U'\u00FF';
        }
    }
    return toUtf8(text);
}

} // namespace quillora
