// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionsModel.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quillora {

namespace {

using Page = OptionsModel::Page;
using Kind = OptionsModel::Kind;

constexpr std::array<OptionsModel::Entry, 19> kEntries{{
    {0, Page::Personal, Kind::Check, " Sistema de &puntos",
     " Intenta superarte a ti mismo en un sistema de puntos. "},
    {1, Page::Personal, Kind::Check, " Modo &supervivencia",
     " Juega ahorcado sin caer en los 0 puntos. "},
    {2, Page::Personal, Kind::Check, " Modo &contratiempo",
     " Intenta ganar el juego antes de que se termine el tiempo establecido. "},
    {10, Page::Personal, Kind::Check, " Contratiempo &difícil",
     " ¡Juega más rápido!, el juego sólo te dará 5 segundos por cada letra que esté oculta. "},
    {11, Page::Personal, Kind::Check, " M&enos puntos",
     " Los Strikes y la ahorca te reducirán el doble los puntos. "},
    {18, Page::Personal, Kind::Field, "", " Jugador frecuente. "},
    {3, Page::Visual, Kind::Check, " &Sombreado opaco",
     " Has opaco o transparente el sombreado de las letras de la frase. "},
    {4, Page::Visual, Kind::Check, " &Letra blanca", " Has blanca la letra de la frase. "},
    {5, Page::Visual, Kind::Check, " L&inea blanca", " Has blanca las lineas de la frase. "},
    {6, Page::Visual, Kind::Check, " Tamaño R&eal",
     " Expande o encoge o ten el tamaño real del fondo del juego. "},
    {20, Page::Visual, Kind::Field, " Estilo de &diseño",
     " Número clave del estilo de diseño de las letras. "},
    {14, Page::Visual, Kind::Field,
     " &Tema:", " Cambia el color azul del juego por algún otro color. "},
    {15, Page::Visual, Kind::Button, "...", " Abrir colores. "},
    {7, Page::Functional, Kind::Check, " &Sonidos",
     " Escucha los distintos sonidos que usa Quillora VS para divertirse más. "},
    {8, Page::Functional, Kind::Check, " Frase &automática",
     " El juego te escoge la frase de un tema que jugaste seguido. "},
    {9, Page::Functional, Kind::Check, " Usar &Wikipedia", " Usa Wikipedia o el buscador Bing. "},
    {12, Page::Functional, Kind::Check, " Sin botón &JUGAR",
     " Reemplaza el botón JUGAR con hacer clic en el juego. "},
    {13, Page::Functional, Kind::Check, " &Teclado permanente",
     " El teclado estará siempre visible.   "},
    {19, Page::Functional, Kind::Field, " &Número del tema",
     " Número clave del tema de frase que está seleccionado.  "},
}};

// The labels of "LIBRE!" in the order the list shows them. The rows hold the
// file's lines in file order, so lines 16 and 17 stand under the two labels
// swapped: the list has always been laid out this way.
constexpr std::array<std::string_view, OptionsModel::kLines> kLineLabels{
    "Fondo del juego",  "Carpeta del fondo", "Estilo de diseño",  "Letra opaca",
    "Letra blanca",     "Linea blanca",      "Tamaño real",       "Sonidos",
    "Frase automática", "Animación",         "Número del tema",   "Sistema de puntos",
    "M. supervivencia", "M. contratiempo",   "Nombre de usuario", "Más puntos negativos",
    "Usar Wikipedia",   "Color del juego",   "Sin botón JUGAR",   "Teclado permanente"};

constexpr std::array<std::string_view, OptionsModel::kPages> kPageNames{"PERSONAL", "VISUAL",
                                                                        "FUNCIONAL", "LIBRE!"};

// The entries of the boxes the dependencies tie together.
constexpr int kPoints = 0, kSurvival = 1, kCountdown = 2, kOpaque = 3, kWhiteLetters = 4,
              kWhiteLines = 5, kRealSize = 6, kSounds = 7, kAutoPhrase = 8, kEncyclopedia = 9,
              kHardCountdown = 10, kFewerPoints = 11, kNoPlayButton = 12, kKeyboardKept = 13;

// Rows of the "LIBRE!" values: the text ones, and the ones the options read.
constexpr int kPictureRow = 0, kFolderRow = 1, kAnimationRow = 9, kNameRow = 14, kColourRow = 17;

const std::string kPlaceholder = "Nombre";
const std::string kDefaultName = "Quillora VS";
const std::string kNoName = "JUGADOR 1";

// A number as the value list shows it: whole numbers without a point.
std::string numberText(double value) {
    if (std::abs(value) < 1e15 && value == std::trunc(value)) {
        return std::to_string(static_cast<long long>(value));
    }
    std::array<char, 64> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    return std::string(text.data(), written.ptr);
}

// What a number box holds: its digits, and for the colour code a leading
// minus, which the field then turns into "0".
std::string digitsOf(const std::string& text, bool sign) {
    std::string kept;
    for (char c : text) {
        if ((c >= '0' && c <= '9') || (sign && c == '-' && kept.empty())) {
            kept.push_back(c);
        }
    }
    return kept;
}

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

const std::array<OptionsModel::Entry, 19>& OptionsModel::entries() {
    return kEntries;
}

std::string_view OptionsModel::pageName(Page page) {
    return kPageNames[at(static_cast<int>(page))];
}

std::string_view OptionsModel::lineLabel(int row) {
    return row >= 0 && row < kLines ? kLineLabels[at(row)] : std::string_view();
}

OptionsModel::OptionsModel(SharedState& shared, Dialogs& dialogs)
    : m_shared(shared), m_dialogs(dialogs) {
    m_code = std::to_string(editorColour().packed());
}

void OptionsModel::open() {
    readValues();
    fillPages();
    choosePage(rememberedPage());
}

void OptionsModel::readValues() {
    const auto lines = readConfigLines(m_shared.currentSession().filePath);
    if (lines) {
        fillValues(*lines);
        return;
    }
    m_dialogs.error("Hubo una falla al cargar la configuración, tenga el cuidado de no "
                    "guardar sin revisar.");
    // The list then shows what the pages show, rather than twenty blanks
    // that a save would write over the file.
    fillValues(settingsLines(m_shared.settings));
}

template <typename Lines> void OptionsModel::fillValues(const Lines& lines) {
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

void OptionsModel::fillPages() {
    const Settings& s = m_shared.settings;
    m_boxes[kPoints] = s.pointsSystem;
    m_boxes[kSurvival] = s.survival;
    m_boxes[kCountdown] = s.countdown == 1 || s.countdown == 2;
    m_boxes[kHardCountdown] = s.countdown == 2;
    m_boxes[kFewerPoints] = s.moreNegativePoints;
    m_boxes[kOpaque] = s.opaqueLetters;
    m_boxes[kWhiteLetters] = s.whiteLetters;
    m_boxes[kWhiteLines] = s.whiteLines;
    m_boxes[kRealSize] = s.realSize;
    m_boxes[kSounds] = s.sounds;
    m_boxes[kAutoPhrase] = s.autoPhrase;
    m_boxes[kEncyclopedia] = s.useEncyclopedia;
    m_boxes[kNoPlayButton] = s.playButtonHidden;
    m_boxes[kKeyboardKept] = s.keyboardKeptOpen;
    m_style = std::to_string(s.letterStyle);
    m_theme = std::to_string(s.theme);
    if (s.userName == kDefaultName) {
        m_name = kPlaceholder;
    } else if (s.userName.empty()) {
        m_name = kDefaultName;
    } else {
        m_name = s.userName;
    }
    // Through the field's own rule: the window opens in the colour it shows.
    setColourCodeText(std::to_string(s.gameColour.packed()));
}

// --- pages -----------------------------------------------------------------------------

OptionsModel::Page OptionsModel::rememberedPage() const {
    const int page = m_shared.current().optionsPage;
    return page >= 0 && page < kPages ? static_cast<Page>(page) : Page::Personal;
}

void OptionsModel::choosePage(Page page) {
    m_page = page;
    m_shared.current().optionsPage = static_cast<int>(page);
    if (m_row >= 0) {
        m_valueText = m_values[at(m_row)];
    }
    if (page == Page::Visual) {
        splitGameColour();
    }
}

Rgb OptionsModel::commandColour() const {
    return m_page == Page::RawLines ? m_shared.palette.redLamp : gameColour();
}

Rgb OptionsModel::gameColour() const {
    return m_shared.palette.gameColour;
}

Rgb OptionsModel::defaultBlue() const {
    return m_shared.palette.defaultBlue;
}

// --- check boxes -------------------------------------------------------------------------

bool OptionsModel::box(int index) const {
    return isBox(index) && m_boxes[at(index)];
}

void OptionsModel::setBox(int index, bool on) {
    m_boxes[at(index)] = on;
}

void OptionsModel::clickBox(int index) {
    if (!isBox(index)) {
        return;
    }
    // Only the free style leaves the shading and the letter colour to the
    // player; every other style decides them itself.
    if ((index == kOpaque || index == kWhiteLetters) && m_style != "0") {
        m_dialogs.exclamation("Lo siento, pero para cambiar estas opciones debe tener el diseño "
                              "en estilo libre (0).");
        choosePage(rememberedPage());
        return;
    }
    setBox(index, !box(index));
    if (box(index)) {
        if (index == kSurvival || index == kFewerPoints) {
            setBox(kPoints, true);
        } else if (index == kHardCountdown) {
            setBox(kCountdown, true);
        }
    }
    applyDependencies();
}

// Survival and fewer points only mean something with points; the hard
// countdown is a kind of countdown.
void OptionsModel::applyDependencies() {
    if (!box(kPoints)) {
        setBox(kSurvival, false);
        setBox(kFewerPoints, false);
    }
    if (!box(kCountdown)) {
        setBox(kHardCountdown, false);
    }
}

// --- fields --------------------------------------------------------------------------------

void OptionsModel::setStyleText(const std::string& text) {
    m_style = digitsOf(text, false);
    if (m_style.empty() || m_style == "0") {
        return;
    }
    if (m_style == "1" || m_style == "4") {
        setBox(kOpaque, false);
        setBox(kWhiteLetters, false);
    } else if (m_style == "2") {
        setBox(kOpaque, true);
        setBox(kWhiteLetters, false);
    } else if (m_style == "3") {
        setBox(kOpaque, true);
        setBox(kWhiteLetters, true);
    } else {
        m_dialogs.exclamation("No existen más estilos en los diseños.");
        m_style = "4";
        setBox(kOpaque, false);
        setBox(kWhiteLetters, false);
    }
}

void OptionsModel::setThemeText(const std::string& text) {
    m_theme = digitsOf(text, false);
    if (leadingNumber(m_theme) > ThemeCatalogue::kThemes) {
        m_dialogs.exclamation("No existen más temas para jugar.");
        m_theme = std::to_string(ThemeCatalogue::kThemes);
    }
}

void OptionsModel::setNameText(const std::string& text) {
    // The name goes into the file and names the user's file: only what a
    // line of it can hold.
    m_name = storableText(text);
}

void OptionsModel::nameEntered() {
    if (m_name == kPlaceholder) {
        m_name.clear();
    }
}

void OptionsModel::nameLeft() {
    if (m_name.empty()) {
        m_name = kPlaceholder;
    }
}

void OptionsModel::setColourCodeText(const std::string& text) {
    m_colourCode = digitsOf(text, true);
    const double value = leadingNumber(m_colourCode);
    if (value < 0) {
        m_colourCode = "0";
    } else if (value > kMaxColourCode) {
        m_colourCode = std::to_string(kMaxColourCode);
    }
    m_shared.palette.gameColour =
        Rgb::fromPacked(static_cast<std::uint32_t>(leadingNumber(m_colourCode)));
}

// --- colour editor -------------------------------------------------------------------------

std::string_view OptionsModel::editorButtonCaption() const {
    return m_editorOpen ? "x" : "...";
}

std::string_view OptionsModel::editorButtonTooltip() const {
    return m_editorOpen ? " Cerrar colores. " : " Abrir colores. ";
}

int OptionsModel::component(Channel channel) const {
    return m_components[at(static_cast<int>(channel))];
}

void OptionsModel::setComponent(Channel channel, int value) {
    m_components[at(static_cast<int>(channel))] = std::clamp(value, 0, kComponentMax);
    m_code = std::to_string(editorColour().packed());
}

Rgb OptionsModel::editorColour() const {
    return Rgb{m_components[0], m_components[1], m_components[2]};
}

void OptionsModel::applyCode() {
    setColourCodeText(m_code);
}

void OptionsModel::useDefaultBlue() {
    // The field follows, so the window and what a save stores agree with it.
    setColourCodeText(std::to_string(defaultBlue().packed()));
    splitGameColour();
}

void OptionsModel::splitGameColour() {
    const Rgb colour = Rgb::fromPacked(gameColour().packed());
    setComponent(Channel::Blue, colour.blue);
    setComponent(Channel::Green, colour.green);
    setComponent(Channel::Red, colour.red);
}

// --- "LIBRE!" ----------------------------------------------------------------------------------

void OptionsModel::selectRow(int row) {
    if (row < 0 || row >= kLines) {
        return;
    }
    m_row = row;
    m_valueText = m_values[at(row)];
}

void OptionsModel::setValueText(const std::string& text) {
    m_valueText = storableText(text);
    if (m_row >= 0) {
        m_values[at(m_row)] = m_valueText;
    }
}

// --- saving and leaving --------------------------------------------------------------------------

bool OptionsModel::save() {
    return m_page == Page::RawLines ? saveFromRawLines() : saveFromPages();
}

bool OptionsModel::saveFromPages() {
    Settings& s = m_shared.settings;
    if (m_style.empty()) {
        m_style = "0";
    }
    if (m_theme.empty()) {
        m_theme = "0";
    }
    s.letterStyle = leadingCount(m_style);
    s.theme = leadingCount(m_theme);
    // The animation has no box of its own; only the line as the file has it
    // keeps it on.
    s.animated = leadingNumber(m_values[kAnimationRow]) == 1;

    s.pointsSystem = box(kPoints);
    s.survival = box(kPoints) && box(kSurvival);
    s.moreNegativePoints = box(kPoints) && box(kFewerPoints);
    s.countdown = !box(kCountdown) ? 0 : box(kHardCountdown) ? 2 : 1;
    s.opaqueLetters = box(kOpaque);
    s.whiteLetters = box(kWhiteLetters);
    s.whiteLines = box(kWhiteLines);
    s.realSize = box(kRealSize);
    s.sounds = box(kSounds);
    s.autoPhrase = box(kAutoPhrase);
    s.useEncyclopedia = box(kEncyclopedia);
    s.playButtonHidden = box(kNoPlayButton);
    s.keyboardKeptOpen = box(kKeyboardKept);

    if (m_name.empty()) {
        m_name = kNoName;
    } else if (m_name == kPlaceholder) {
        m_name = kDefaultName;
    }
    s.userName = m_name;
    // The colour the field chose is the one stored.
    s.gameColour = gameColour();

    if (!saveSettings(m_shared, m_dialogs)) {
        return false;
    }
    // "LIBRE!" shows the file as it now is, so a save from there later does
    // not put the old lines back.
    fillValues(m_shared.configLines);
    return true;
}

bool OptionsModel::saveFromRawLines() {
    const std::vector<std::string> lines(m_values.begin(), m_values.end());
    if (!writeConfigLines(m_shared.currentSession().filePath, lines)) {
        m_dialogs.information("No se pudo guardar, intente más tarde.");
        return false;
    }
    // The options in memory are what the file now says, as the board would
    // read them, and the option pages show them.
    std::copy(lines.begin(), lines.end(), m_shared.configLines.begin());
    applyLineValues(m_shared);
    fillPages();
    return true;
}

bool OptionsModel::tickOut() {
    if (!m_outRunning) {
        return false;
    }
    m_outRunning = false;
    m_pagesHidden = true;
    return true;
}

// --- keys on the page list
// --------------------------------------------------------------------------

OptionsModel::KeyAction OptionsModel::keyOnList(char32_t key) const {
    using Act = KeyAction::Kind;
    if (key >= U'a' && key <= U'z') {
        key = key - U'a' + U'A';
    }
    const auto act = [](Act kind) { return KeyAction{kind, -1, Field::None, false}; };
    const auto flip = [](int box) { return KeyAction{Act::Box, box, Field::None, false}; };
    const auto focus = [](Field field, bool editor = false) {
        return KeyAction{Act::Focus, -1, field, editor};
    };
    if (key == U'U') {
        return act(Act::Save);
    }
    if (key == U'M') {
        return act(Act::Menu);
    }
    switch (m_page) {
    case Page::Personal:
        switch (key) {
        case U'1':
        case U'P':
            return flip(kPoints);
        case U'2':
        case U'S':
            return flip(kSurvival);
        case U'3':
        case U'E':
            return flip(kFewerPoints);
        case U'4':
        case U'C':
            return flip(kCountdown);
        case U'5':
        case U'D':
            return flip(kHardCountdown);
        case U'6':
        case U'N':
            return focus(Field::Name);
        default:
            break;
        }
        break;
    case Page::Visual:
        switch (key) {
        case U'1':
        case U'D':
            return focus(Field::Style);
        case U'2':
        case U'S':
            return flip(kOpaque);
        case U'3':
        case U'L':
            return flip(kWhiteLetters);
        case U'4':
        case U'I':
            return flip(kWhiteLines);
        case U'5':
        case U'E':
            return flip(kRealSize);
        case U'6':
        case U'T':
            return focus(Field::ColourCode);
        case U'7':
        case U'A':
            return KeyAction{Act::DefaultBlue, -1, Field::None, true};
        case U'R':
            return focus(Field::Red, true);
        case U'G':
            return focus(Field::Green, true);
        case U'B':
            return focus(Field::Blue, true);
        default:
            break;
        }
        break;
    case Page::Functional:
        switch (key) {
        case U'1':
        case U'S':
            return flip(kSounds);
        case U'2':
        case U'A':
            return flip(kAutoPhrase);
        case U'3':
        case U'W':
            return flip(kEncyclopedia);
        case U'4':
        case U'J':
            return flip(kNoPlayButton);
        case U'5':
        case U'T':
            return flip(kKeyboardKept);
        case U'6':
        case U'N':
            return focus(Field::Theme);
        default:
            break;
        }
        break;
    case Page::RawLines:
        if (key == U'1') {
            return focus(Field::Labels);
        }
        if (key == U'2' || key == U'L') {
            return focus(Field::Values);
        }
        break;
    }
    return act(Act::None);
}

} // namespace quillora
