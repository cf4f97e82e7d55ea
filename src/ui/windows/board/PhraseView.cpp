// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/PhraseView.h"

#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QPainter>

namespace quillora {

namespace {

constexpr int kCellSize = 495;
constexpr int kColumnPitch = 600;
constexpr int kRowPitch = 720;
constexpr int kUnderlineLength = 480;
constexpr int kUnderlineBelowTop = 480;
constexpr double kCellFontPoints = 20.25;

} // namespace

PhraseView::PhraseView(const Round& round, const BoardAppearance& look, QWidget* parent)
    : QWidget(parent), m_round(round), m_look(look) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("Frase"));
    const int width = kColumnPitch * (PhraseBoard::kColumns - 1) + kCellSize;
    const int height = kRowPitch * 2 + kCellSize + 30;
    placeInTwips(this, QRect(kLeftTwips, kTopTwips, width, height));
}

QFont PhraseView::makeCellFont() {
    // The board's letters are the bold rounded display face.
    return Fonts::display(kCellFontPoints);
}

QRect PhraseView::cellRect(int cell) const {
    const int row = (cell - 1) / PhraseBoard::kColumns;
    const int column = (cell - 1) % PhraseBoard::kColumns;
    return m_scale.rect(kColumnPitch * column, kRowPitch * row, kCellSize, kCellSize);
}

PhraseView::Face PhraseView::faceOf(int cell) const {
    return Face{m_round.board().cell(cell), m_look.cellLook(cell), m_look.missColour()};
}

QRect PhraseView::paintedRect(int cell) const {
    const int row = (cell - 1) / PhraseBoard::kColumns;
    const int column = (cell - 1) % PhraseBoard::kColumns;
    // The underline runs below the cell's box; antialiased edges spill a
    // pixel round it.
    const int spill = m_scale.pixels(1);
    return m_scale
        .rect(kColumnPitch * column, kRowPitch * row, kCellSize,
              kUnderlineBelowTop + 2 * kTwipsPerPixel)
        .united(cellRect(cell))
        .adjusted(-spill, -spill, spill, spill);
}

void PhraseView::followScale() {
    const TwipScale scale = TwipScale::of(this);
    if (scale.factor() != m_scale.factor()) {
        // The letters were laid out in the font of the old scale.
        m_scale = scale;
        m_cellFont = scale.font(makeCellFont());
        m_letters.clear();
        update();
    }
}

void PhraseView::sync() {
    followScale();
    QList<int> changed;
    for (int i = 1; i <= PhraseBoard::kCells; ++i) {
        const auto index = static_cast<std::size_t>(i - 1);
        Face face = faceOf(i);
        if (m_faces[index] == face) {
            continue;
        }
        update(paintedRect(i));
        QString name = qs(spokenCellName(face.cell));
        if (name != m_spoken[index]) {
            m_spoken[index] = std::move(name);
            changed.append(i - 1);
        }
        m_faces[index] = face;
    }
    announceChildren(this, changed, QAccessible::NameChanged);
}

void PhraseView::paintEvent(QPaintEvent* event) {
    followScale();
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(m_cellFont);

    // The cells are placed in twips and painted in pixels: text scaled down
    // from twips is laid out afresh at every paint, where a letter's kept
    // layout is only copied from the glyph cache.
    const double perTwip = m_scale.factor() / kTwipsPerPixel;
    const auto pixels = [perTwip](double twips) { return twips * perTwip; };
    const PhraseBoard& board = m_round.board();
    const Rgb miss = m_look.missColour();
    for (int i = 1; i <= PhraseBoard::kCells; ++i) {
        if (!event->rect().intersects(paintedRect(i))) {
            continue;
        }
        const PhraseBoard::Cell& cell = board.cell(i);
        const int row = (i - 1) / PhraseBoard::kColumns;
        const int column = (i - 1) % PhraseBoard::kColumns;
        const QRectF box(pixels(kColumnPitch * column), pixels(kRowPitch * row), pixels(kCellSize),
                         pixels(kCellSize));
        const CellLook look = m_look.cellLook(i);
        if (cell.revealed || cell.missed) {
            if (look.filled) {
                p.fillRect(box, qc(look.background));
            }
            p.setPen(qc(cell.missed ? miss : look.letter));
            const QStaticText& letter = letterText(cell.character);
            const QSizeF size = letter.size();
            p.drawStaticText(box.center() - QPointF(size.width() / 2, size.height() / 2), letter);
        }
        if (cell.underline) {
            p.setPen(QPen(qc(look.underline), m_scale.pixels(2.0), Qt::SolidLine, Qt::FlatCap));
            const double y = pixels(kRowPitch * row + kUnderlineBelowTop);
            p.drawLine(QPointF(pixels(kColumnPitch * column), y),
                       QPointF(pixels(kColumnPitch * column + kUnderlineLength), y));
        }
    }
}

const QStaticText& PhraseView::letterText(char32_t character) {
    auto found = m_letters.find(character);
    if (found == m_letters.end()) {
        QStaticText text(QString::fromUcs4(&character, 1));
        text.setTextFormat(Qt::PlainText);
        text.prepare(QTransform(), m_cellFont);
        found = m_letters.emplace(character, std::move(text)).first;
    }
    return found->second;
}

} // namespace quillora
