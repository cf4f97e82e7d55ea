// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "round/PhraseBoard.h"

#include "platform/TwipScale.h"

#include <QFont>
#include <QStaticText>
#include <QWidget>

#include <array>
#include <optional>
#include <unordered_map>

namespace quillora {

class BoardAppearance;
class Round;

// The 42 letter cells with their underlines, in the letter style in use.
class PhraseView final : public QWidget {
public:
    PhraseView(const Round& round, const BoardAppearance& look, QWidget* parent);

    static constexpr int kLeftTwips = 3000;
    static constexpr int kTopTwips = 1440;

    // The face the cells' letters are painted in.
    const QFont& cellFont() const { return m_cellFont; }
    const Round& round() const { return m_round; }
    // Cell 1..42 in this widget's pixels.
    QRect cellRect(int cell) const;
    // Repaints the cells whose face changed, and tells a screen reader of
    // every cell that reads anew.
    void sync();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static QFont makeCellFont();
    // What one cell was last painted with: a cell whose face is the same
    // need not be painted again.
    struct Face {
        PhraseBoard::Cell cell;
        CellLook look;
        Rgb miss;
        bool operator==(const Face&) const = default;
    };
    Face faceOf(int cell) const;
    // The cell with its underline and the edges of its letter.
    QRect paintedRect(int cell) const;
    // A letter laid out once in the cells' font.
    const QStaticText& letterText(char32_t character);

    const Round& m_round;
    const BoardAppearance& m_look;
    // The board's scale, followed as the cells are brought in step and painted.
    void followScale();

    TwipScale m_scale;
    QFont m_cellFont = makeCellFont();
    std::unordered_map<char32_t, QStaticText> m_letters;
    std::array<QString, PhraseBoard::kCells> m_spoken;
    std::array<std::optional<Face>, PhraseBoard::kCells> m_faces;
};

} // namespace quillora
