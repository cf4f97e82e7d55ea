// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/options/ColourEditorModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;

namespace quillora {

// The colour editor of the VISUAL page: red, green and blue on sliders and
// number boxes, the code they make, a swatch of it, "=" to use it as the
// game colour, and the way back to the default blue.
class ColourEditor final : public QWidget {
public:
    using Channel = ColourEditorModel::Channel;
    // `changed` runs after every change the editor hands to the model, so
    // the whole window can follow the game colour.
    ColourEditor(ColourEditorModel& model, std::function<void()> changed, QWidget* parent);

    void sync();

    QSlider* slider(Channel channel) const { return m_sliders[index(channel)]; }
    QSpinBox* numberBox(Channel channel) const { return m_boxes[index(channel)]; }
    QLineEdit* codeBox() const { return m_codeBox; }
    QWidget* swatch() const { return m_colourSwatch; }
    QPushButton* applyButton() const { return m_applyButton; }
    QPushButton* defaultButton() const { return m_defaultButton; }

private:
    static std::size_t index(Channel channel) { return static_cast<std::size_t>(channel); }
    void setComponent(Channel channel, int value);

    ColourEditorModel& m_model;
    std::function<void()> m_changed;
    std::array<QSlider*, 3> m_sliders{};
    std::array<QSpinBox*, 3> m_boxes{};
    std::array<QWidget*, 3> m_marks{};
    std::array<QLabel*, 5> m_labels{};
    QLineEdit* m_codeBox = nullptr;
    QWidget* m_colourSwatch = nullptr;
    QPushButton* m_applyButton = nullptr;
    QPushButton* m_defaultButton = nullptr;
};

} // namespace quillora
