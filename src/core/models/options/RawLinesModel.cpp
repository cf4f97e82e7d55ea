// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/RawLinesModel.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace quillora {

namespace {

// The labels of "LIBRE!" in the order the list shows them. The rows hold the
// file's lines in file order, so lines 16 and 17 stand under the two labels
// swapped: the list has always been laid out this way.
constexpr std::array<std::string_view, RawLinesModel::kLines> kLineLabels{
    "Fondo del juego",  "Carpeta del fondo", "Estilo de diseño",  "Letra opaca",
    "Letra blanca",     "Linea blanca",      "Tamaño real",       "Sonidos",
    "Frase automática", "Animación",         "Número del tema",   "Sistema de puntos",
    "M. supervivencia", "M. contratiempo",   "Nombre de usuario", "Más puntos negativos",
    "Usar Wikipedia",   "Color del juego",   "Sin botón JUGAR",   "Teclado permanente"};

// Rows of the values: the text ones, and the ones read here.
constexpr int kPictureRow = 0, kFolderRow = 1, kAnimationRow = 9, kNameRow = 14, kColourRow = 17;

// A number as the value list shows it: whole numbers without a point.
std::string numberText(double value) {
    if (std::abs(value) < 1e15 && value == std::trunc(value)) {
        return std::to_string(static_cast<long long>(value));
    }
    std::array<char, 64> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    return std::string(text.data(), written.ptr);
}

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

std::string_view RawLinesModel::lineLabel(int row) {
    return row >= 0 && row < kLines ? kLineLabels[at(row)] : std::string_view();
}

RawLinesModel::RawLinesModel(SharedState& shared, Dialogs& dialogs)
    : m_shared(shared), m_dialogs(dialogs) {}

void RawLinesModel::read() {
    const auto lines = readConfigLines(m_shared.currentSession().filePath);
    if (lines) {
        fillValues(*lines);
        return;
    }
    // A file not written yet is a user who has changed nothing so far.
    if (!configFileMissing(m_shared.currentSession().filePath)) {
        m_dialogs.error("Hubo una falla al cargar la configuración, tenga el cuidado de no "
                        "guardar sin revisar.");
    }
    // The list then shows what the pages show, rather than twenty blanks
    // that a save would write over the file.
    fillValues(settingsLines(m_shared.settings));
}

void RawLinesModel::showSavedLines() {
    fillValues(m_shared.configLines);
}

template <typename Lines> void RawLinesModel::fillValues(const Lines& lines) {
    for (int row = 0; row < kLines; ++row) {
        std::string& value = m_values[at(row)];
        value = at(row) < lines.size() ? lines[at(row)] : std::string();
        if (row == kPictureRow || row == kFolderRow || row == kNameRow) {
            continue;
        }
        if (row == kColourRow && value.empty()) {
            value = std::to_string(gameColour().packed());
            continue;
        }
        value = numberText(leadingNumber(value));
    }
    if (m_row >= 0) {
        m_valueText = m_values[at(m_row)];
    }
}

void RawLinesModel::selectRow(int row) {
    if (row < 0 || row >= kLines) {
        return;
    }
    m_row = row;
    m_valueText = m_values[at(row)];
}

void RawLinesModel::setValueText(const std::string& text) {
    m_valueText = storableText(text);
    if (m_row >= 0) {
        m_values[at(m_row)] = m_valueText;
    }
}

bool RawLinesModel::animated() const {
    return leadingNumber(m_values[at(kAnimationRow)]) == 1;
}

bool RawLinesModel::save() {
    const std::vector<std::string> lines(m_values.begin(), m_values.end());
    if (!writeConfigLines(m_shared.currentSession().filePath, lines)) {
        m_dialogs.information("No se pudo guardar, intente más tarde.");
        return false;
    }
    // The options in memory are what the file now says, as the board would
    // read them.
    std::copy(lines.begin(), lines.end(), m_shared.configLines.begin());
    applyLineValues(m_shared);
    return true;
}

Rgb RawLinesModel::gameColour() const {
    return m_shared.palette.gameColour;
}

} // namespace quillora
