// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/PhraseView.h"

#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
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
    setGeometry(px(kLeftTwips), px(kTopTwips), px(width), px(height));
}

QFont PhraseView::makeCellFont() {
    // The board's letters are the bold rounded display face; the painter
    // works in twips, so the font is sized in twips too.
    QFont font = Fonts::display(kCellFontPoints);
    font.setPixelSize(pointsToPixels(kCellFontPoints) * kTwipsPerPixel);
    return font;
}

QRect PhraseView::cellRect(int cell) const {
    const int row = (cell - 1) / PhraseBoard::kColumns;
    const int column = (cell - 1) % PhraseBoard::kColumns;
    return QRect(px(kColumnPitch * column), px(kRowPitch * row), px(kCellSize), px(kCellSize));
}

PhraseView::Face PhraseView::faceOf(int cell) const {
    return Face{m_round.board().cell(cell), m_look.cellLook(cell), m_look.missColour()};
}

QRect PhraseView::paintedRect(int cell) const {
    const int row = (cell - 1) / PhraseBoard::kColumns;
    const int column = (cell - 1) % PhraseBoard::kColumns;
    // The underline runs below the cell's box; antialiased edges spill a
    // pixel round it.
    return QRect(px(kColumnPitch * column), px(kRowPitch * row), px(kCellSize),
                 px(kUnderlineBelowTop + 2 * kTwipsPerPixel))
        .united(cellRect(cell))
        .adjusted(-1, -1, 1, 1);
}

void PhraseView::sync() {
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
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.scale(1.0 / kTwipsPerPixel, 1.0 / kTwipsPerPixel);

    p.setFont(m_cellFont);

    const PhraseBoard& board = m_round.board();
    const Rgb miss = m_look.missColour();
    for (int i = 1; i <= PhraseBoard::kCells; ++i) {
        if (!event->rect().intersects(paintedRect(i))) {
            continue;
        }
        const PhraseBoard::Cell& cell = board.cell(i);
        const int row = (i - 1) / PhraseBoard::kColumns;
        const int column = (i - 1) % PhraseBoard::kColumns;
        const QRectF box(kColumnPitch * column, kRowPitch * row, kCellSize, kCellSize);
        const CellLook look = m_look.cellLook(i);
        if (cell.revealed || cell.missed) {
            if (look.filled) {
                p.fillRect(box, qc(look.background));
            }
            p.setPen(qc(cell.missed ? miss : look.letter));
            p.drawText(box, Qt::AlignCenter, QString::fromUcs4(&cell.character, 1));
        }
        if (cell.underline) {
            p.setPen(QPen(qc(look.underline), 2 * kTwipsPerPixel, Qt::SolidLine, Qt::FlatCap));
            const double y = kRowPitch * row + kUnderlineBelowTop;
            p.drawLine(QPointF(kColumnPitch * column, y),
                       QPointF(kColumnPitch * column + kUnderlineLength, y));
        }
    }
}

} // namespace quillora
