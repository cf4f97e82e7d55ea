// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionsModel.h"

#include "state/SharedState.h"
#include "storage/ConfigFile.h"

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

constexpr std::array<std::string_view, OptionsModel::kPages> kPageNames{"PERSONAL", "VISUAL",
                                                                        "FUNCIONAL", "LIBRE!"};

} // namespace

const std::array<OptionsModel::Entry, 19>& OptionsModel::entries() {
    return kEntries;
}

std::string_view OptionsModel::pageName(Page page) {
    return kPageNames[static_cast<std::size_t>(page)];
}

OptionsModel::OptionsModel(SharedState& shared, Dialogs& dialogs, Random& random)
    : m_shared(shared), m_dialogs(dialogs), m_random(random), m_colourCode(shared.palette),
      m_choices(m_colourCode, dialogs), m_colourEditor(m_colourCode), m_rawLines(shared, dialogs) {}

void OptionsModel::open() {
    // Straight from the menu at the start, or after a change of user, memory
    // holds the defaults or someone else's options: shown and saved, they
    // would write over the user's own.
    if (!sessionSettingsLoaded(m_shared)) {
        loadSessionSettings(m_shared, m_random);
    }
    m_rawLines.read();
    m_choices.fill(m_shared.settings);
    choosePage(rememberedPage());
}

// --- pages -----------------------------------------------------------------------------

OptionsModel::Page OptionsModel::rememberedPage() const {
    const int page = m_shared.current().optionsPage;
    return page >= 0 && page < kPages ? static_cast<Page>(page) : Page::Personal;
}

void OptionsModel::choosePage(Page page) {
    m_page = page;
    m_shared.current().optionsPage = static_cast<int>(page);
    if (page == Page::Visual) {
        m_colourEditor.splitGameColour();
    }
}

Rgb OptionsModel::commandColour() const {
    return m_page == Page::RawLines ? m_shared.palette.redLamp : m_colourCode.gameColour();
}

void OptionsModel::clickBox(int index) {
    if (!m_choices.clickBox(index)) {
        choosePage(rememberedPage());
    }
}

// --- saving and leaving --------------------------------------------------------------------------

bool OptionsModel::save() {
    return m_page == Page::RawLines ? saveFromRawLines() : saveFromPages();
}

bool OptionsModel::saveFromPages() {
    m_choices.store(m_shared.settings);
    m_shared.settings.animated = m_rawLines.animated();
    if (!saveSettings(m_shared, m_dialogs)) {
        return false;
    }
    m_rawLines.showSavedLines();
    return true;
}

bool OptionsModel::saveFromRawLines() {
    if (!m_rawLines.save()) {
        return false;
    }
    // The option pages show what the file now says.
    m_choices.fill(m_shared.settings);
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

// --- keys on the page list -----------------------------------------------------------------------

OptionsModel::KeyAction OptionsModel::keyOnList(char32_t key) const {
    using Act = KeyAction::Kind;
    using Box = OptionChoices;
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
            return flip(Box::kPoints);
        case U'2':
        case U'S':
            return flip(Box::kSurvival);
        case U'3':
        case U'E':
            return flip(Box::kFewerPoints);
        case U'4':
        case U'C':
            return flip(Box::kCountdown);
        case U'5':
        case U'D':
            return flip(Box::kHardCountdown);
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
            return flip(Box::kOpaque);
        case U'3':
        case U'L':
            return flip(Box::kWhiteLetters);
        case U'4':
        case U'I':
            return flip(Box::kWhiteLines);
        case U'5':
        case U'E':
            return flip(Box::kRealSize);
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
            return flip(Box::kSounds);
        case U'2':
        case U'A':
            return flip(Box::kAutoPhrase);
        case U'3':
        case U'W':
            return flip(Box::kEncyclopedia);
        case U'4':
        case U'J':
            return flip(Box::kNoPlayButton);
        case U'5':
        case U'T':
            return flip(Box::kKeyboardKept);
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
