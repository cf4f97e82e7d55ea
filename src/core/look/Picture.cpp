// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Picture.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace quillora {

bool isPictureName(std::string_view path) {
    constexpr std::array<std::string_view, 5> kEndings{".jpg", ".jpeg", ".gif", ".bmp", ".png"};
    std::string lower(path);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return std::any_of(kEndings.begin(), kEndings.end(), [&](std::string_view ending) {
        return lower.size() > ending.size() && lower.ends_with(ending) &&
               lower[lower.size() - ending.size() - 1] != '/';
    });
}

} // namespace quillora
