// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/ColourEditorModel.h"

#include "models/options/ColourCodeField.h"

#include <algorithm>

namespace quillora {

namespace {

std::size_t at(ColourEditorModel::Channel channel) {
    return static_cast<std::size_t>(channel);
}

} // namespace

ColourEditorModel::ColourEditorModel(ColourCodeField& colourCode) : m_colourCode(colourCode) {
    m_code = std::to_string(colour().packed());
}

std::string_view ColourEditorModel::buttonCaption() const {
    return m_open ? "x" : "...";
}

std::string_view ColourEditorModel::buttonTooltip() const {
    return m_open ? " Cerrar colores. " : " Abrir colores. ";
}

int ColourEditorModel::component(Channel channel) const {
    return m_components[at(channel)];
}

void ColourEditorModel::setComponent(Channel channel, int value) {
    m_components[at(channel)] = std::clamp(value, 0, kComponentMax);
    m_code = std::to_string(colour().packed());
}

Rgb ColourEditorModel::colour() const {
    return Rgb{m_components[0], m_components[1], m_components[2]};
}

void ColourEditorModel::applyCode() {
    m_colourCode.setText(m_code);
}

void ColourEditorModel::useDefaultBlue() {
    m_colourCode.setText(std::to_string(defaultBlue().packed()));
    splitGameColour();
}

void ColourEditorModel::splitGameColour() {
    const Rgb colour = Rgb::fromPacked(gameColour().packed());
    setComponent(Channel::Blue, colour.blue);
    setComponent(Channel::Green, colour.green);
    setComponent(Channel::Red, colour.red);
}

Rgb ColourEditorModel::gameColour() const {
    return m_colourCode.gameColour();
}

Rgb ColourEditorModel::defaultBlue() const {
    return m_colourCode.defaultBlue();
}

} // namespace quillora
