// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/menu/MainMenuModel.h"

#include "desktop/About.h"
#include "players/Players.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "storage/ConfigImport.h"
#include "storage/ProgressFile.h"

namespace quillora {

namespace {

constexpr int kColourLine = 18;
constexpr const char* kWelcome = "BIENVENIDOS";
constexpr const char* kFallbackName = "Quillora VS";

} // namespace

MainMenuModel::MainMenuModel(SharedState& shared, Dialogs& dialogs)
    : m_shared(shared), m_dialogs(dialogs) {}

void MainMenuModel::load() {
    readGameColour();
    m_locked = m_shared.locked;
    m_hovered = m_pressed = m_lit = Spot::Background;
    m_numberSelected = false;
    m_legend = kWelcome;
    m_legendLeft = 0;
    m_legendWidth = kWidthTwips;
    m_legendOpening = false;
}

void MainMenuModel::offerOldConfig() {
    // A progress file that could not be read is told of here, once the
    // menu stands on screen.
    tellProgressNotice(m_shared, m_dialogs);
    // The copied file brings its own game colour, shown at once when it is
    // the current session's file.
    if (quillora::offerOldConfig(m_shared, m_dialogs) == ImportOutcome::Copied) {
        readGameColour();
    }
}

// Only the game colour is wanted here; the board reads the whole file again
// when it opens.
void MainMenuModel::readGameColour() {
    Palette& palette = m_shared.palette;
    const auto lines = readConfigLines(m_shared.currentSession().filePath);
    if (!lines) {
        m_shared.settings.userName = kFallbackName;
        palette.gameColour = palette.defaultBlue;
        return;
    }
    const auto index = static_cast<std::size_t>(kColourLine - 1);
    const std::string text = index < lines->size() ? (*lines)[index] : std::string();
    palette.gameColour = colourFromLine(text, palette.defaultBlue);
}

Rgb MainMenuModel::gameColour() const {
    return m_shared.palette.gameColour;
}

Rgb MainMenuModel::tileColour(Spot spot) const {
    const Palette& palette = m_shared.palette;
    if (spot == m_lit && spot != Spot::Background) {
        return palette.greenLamp;
    }
    switch (spot) {
    case Spot::Solo:
        return palette.redLamp;
    case Spot::Several:
        return palette.greenLamp;
    case Spot::Options:
        return palette.yellowLamp;
    default:
        return palette.gameColour;
    }
}

// While the session is locked its lock lies over every tile but the first.
MainMenuModel::Spot MainMenuModel::reachable(Spot spot) const {
    if (m_locked && (spot == Spot::Friend || spot == Spot::Several || spot == Spot::Options)) {
        return Spot::Lock;
    }
    if (!m_locked && spot == Spot::Lock) {
        return Spot::Background;
    }
    return spot;
}

void MainMenuModel::showLegend(const std::string& text) {
    if (text == m_legend) {
        return;
    }
    m_legend = text;
    m_legendLeft = kLegendStartLeft;
    m_legendWidth = kLegendStartWidth;
    m_legendOpening = true;
}

void MainMenuModel::hover(Spot spot) {
    spot = reachable(spot);
    // The legend itself names nothing: passing over it changes nothing.
    if (spot == Spot::Legend) {
        return;
    }
    m_hovered = spot;
    m_lit = spot == Spot::Lock ? Spot::Background : spot;
    m_numberSelected = spot == Spot::Several;
    if (spot == Spot::Several) {
        m_numberText = std::to_string(kPlayersFromHover);
    }
    showLegend(legendOf(spot));
}

std::string MainMenuModel::legendOf(Spot spot) const {
    switch (spot) {
    case Spot::Solo:
        return m_locked ? "CONTINUAR" : "JUGAR SOLO";
    case Spot::Friend:
        return "JUGAR CON UN AMIGO";
    case Spot::Several:
        return "JUGAR CON VARIOS AMIGOS";
    case Spot::Options:
        return "CONFIGURACIÓN";
    case Spot::Lock:
        return "BLOQUEADO";
    default:
        return kWelcome;
    }
}

void MainMenuModel::press(Spot spot) {
    spot = reachable(spot);
    m_pressed = spot;
    if (spot != Spot::Lock && spot != Spot::Legend) {
        m_lit = spot;
    }
}

MainMenuModel::Outcome MainMenuModel::release(Spot underMouse) {
    const Spot pressed = m_pressed;
    m_pressed = Spot::Background;
    m_lit = Spot::Background;
    if (pressed == Spot::Background || reachable(underMouse) != pressed) {
        return Outcome::Stay;
    }
    return choose(pressed);
}

MainMenuModel::Outcome MainMenuModel::choose(Spot spot) {
    switch (reachable(spot)) {
    case Spot::Solo:
        return Ok(false, 1);
    case Spot::Friend:
        return Ok(true, 2);
    case Spot::Several:
        return playSeveral();
    case Spot::Options:
        m_inRunning = true;
        return Outcome::Stay;
    case Spot::Legend:
        return Outcome::About;
    default:
        return Outcome::Stay;
    }
}

MainMenuModel::Outcome MainMenuModel::playSeveral() {
    if (m_numberText.size() != 1 || m_numberText[0] < '1' || m_numberText[0] > '9') {
        return Outcome::Stay;
    }
    const int players = m_numberText[0] - '0';
    return Ok(players != 1, players);
}

MainMenuModel::Outcome MainMenuModel::Ok(bool multiplayer, int players) {
    setUpRoster(m_shared, multiplayer, players);
    return Outcome::OpenBoard;
}

MainMenuModel::Outcome MainMenuModel::keyTyped(Key key, char32_t character) {
    if (key == Key::Escape) {
        return m_dialogs.yesNo("¿Seguro de cerrar?") ? Outcome::Quit : Outcome::Stay;
    }
    if (key != Key::Character || character < U'0' || character > U'9') {
        return Outcome::Stay;
    }
    if (m_locked) {
        return character == U'1' ? choose(Spot::Solo) : Outcome::Stay;
    }
    if (character == U'0') {
        return choose(Spot::Options);
    }
    m_numberText = std::string(1, static_cast<char>(character));
    return choose(Spot::Several);
}

void MainMenuModel::tickLegend() {
    if (!m_legendOpening) {
        return;
    }
    m_legendLeft -= kLegendStepLeft;
    m_legendWidth += kLegendStepWidth;
    if (m_legendLeft <= 0) {
        // The last step overshoots the edge; the legend settles on the full width.
        m_legendLeft = 0;
        m_legendWidth = kWidthTwips;
        m_legendOpening = false;
    }
}

MainMenuModel::Outcome MainMenuModel::tickIn() {
    if (!m_inRunning) {
        return Outcome::Stay;
    }
    if (m_width < kInFinalWidth) {
        m_width += kInGrowWidth;
        m_height += kInGrowHeight;
        m_left -= kInGrowWidth / 2;
        m_top -= kInGrowHeight / 2;
        return Outcome::Stay;
    }
    m_height = kInFinalHeight;
    m_inRunning = false;
    return Outcome::OpenOptions;
}

void MainMenuModel::placeWindow(int left, int top) {
    m_left = left;
    m_top = top;
}

void MainMenuModel::takeOptionsWidth(int width) {
    m_width = width;
    m_height = kBackFromOptionsHeightTwips;
}

void MainMenuModel::showAbout() {
    quillora::showAbout(m_dialogs);
}

} // namespace quillora
