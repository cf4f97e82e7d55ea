// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/ColourCodeField.h"

#include "storage/ConfigFile.h"

#include <algorithm>
#include <cstdint>

namespace quillora {

namespace {

// What the field holds: its digits, and a leading minus, which the field
// then turns into "0".
std::string digitsAndSign(const std::string& text) {
    std::string kept;
    for (char c : text) {
        if ((c >= '0' && c <= '9') || (c == '-' && kept.empty())) {
            kept.push_back(c);
        }
    }
    return kept;
}

} // namespace

void ColourCodeField::setText(const std::string& text) {
    m_text = digitsAndSign(text);
    // A code out of bounds shows the bound it was cut to.
    const double typed = leadingNumber(m_text);
    const double kept = std::clamp(typed, 0.0, static_cast<double>(kMaxColourCode));
    if (kept != typed) {
        m_text = std::to_string(static_cast<int>(kept));
    }
    m_palette.gameColour = Rgb::fromPacked(static_cast<std::uint32_t>(kept));
}

} // namespace quillora
