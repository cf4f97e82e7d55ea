// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/GallowsView.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Figure.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <cmath>

namespace quillora {

namespace {

QRectF box(TwipBox b) {
    return QRectF(b.left, b.top, b.width, b.height);
}
QLineF line(TwipLine l) {
    return QLineF(l.x1, l.y1, l.x2, l.y2);
}
// Line widths are given in pixels; the painter works in twips.
QPen pen(Rgb colour, int widthPixels) {
    QPen p(qc(colour), widthPixels * kTwipsPerPixel);
    p.setCapStyle(Qt::RoundCap);
    return p;
}

// A place in twips as pixels at the board's scale, with room for the widest
// pen around it.
QRect pixelRect(const QRectF& twips, double factor) {
    const int penRoom = static_cast<int>(std::ceil(6 * factor));
    const double perTwip = factor / kTwipsPerPixel;
    const QRectF pixels(twips.topLeft() * perTwip, twips.size() * perTwip);
    return pixels.toAlignedRect().adjusted(-penRoom, -penRoom, penRoom, penRoom);
}

// Where a part stands, in pixels, with room for the widest pen around it; an
// empty rectangle for a part not shown.
QRect partRect(const Figure& figure, Figure::Part part, double factor) {
    if (!figure.visible(part)) {
        return {};
    }
    QRectF area;
    switch (part) {
    case Figure::Head:
        area = box(figure.headBox());
        break;
    case Figure::Face:
        area = box(figure.faceBox());
        break;
    case Figure::PanicPicture:
        area = box(Figure::panicPictureBox());
        break;
    case Figure::Trapdoor:
        area = box(Figure::trapdoorBox());
        break;
    default: {
        const QLineF l = line(figure.line(part));
        area = QRectF(l.p1(), l.p2()).normalized();
        break;
    }
    }
    return pixelRect(area, factor);
}

// The little drop of sweat that shows when the figure starts to panic.
void paintPanicPicture(QPainter& p, QRectF area) {
    QPainterPath drop;
    const double w = area.width();
    const double h = area.height();
    drop.moveTo(area.left() + w * 0.5, area.top() + h * 0.08);
    drop.cubicTo(area.left() + w * 0.5, area.top() + h * 0.08, area.left() + w * 0.15,
                 area.top() + h * 0.55, area.left() + w * 0.2, area.top() + h * 0.68);
    drop.arcTo(QRectF(area.left() + w * 0.2, area.top() + h * 0.38, w * 0.6, h * 0.55), 180, 180);
    drop.cubicTo(area.left() + w * 0.85, area.top() + h * 0.55, area.left() + w * 0.5,
                 area.top() + h * 0.08, area.left() + w * 0.5, area.top() + h * 0.08);
    p.setPen(QPen(QColor(0, 60, 160), 1.5 * kTwipsPerPixel));
    p.setBrush(QColor(120, 190, 255));
    p.drawPath(drop);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(235, 245, 255));
    p.drawEllipse(QRectF(area.left() + w * 0.33, area.top() + h * 0.55, w * 0.12, h * 0.16));
}

} // namespace

GallowsView::GallowsView(const Figure& figure, QWidget* parent)
    : QWidget(parent), m_figure(figure) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    placeInTwips(this, QRect(0, 0, kWidthTwips, kHeightTwips));
    setAccessibleRole(this, QAccessible::Graphic);
}

void GallowsView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Nothing of the figure reaches above the beam, where the score panel
    // flashes with every lamp: without the mask, this transparent view would
    // be painted again over the panel after every letter.
    const int top = TwipScale::of(this).px(kTopTwips);
    setMask(QRect(0, top, width(), height() - top));
}

void GallowsView::sync() {
    const double factor = TwipScale::of(this).factor();
    if (factor != m_factor) {
        // A new scale draws everything anew, the face in a font of its size.
        m_factor = factor;
        m_faceFont = QFont();
        m_faceLine = QStaticText();
        update();
    }
    QRegion changed;
    for (int index = 0; index < Figure::PartCount; ++index) {
        const auto part = static_cast<Figure::Part>(index);
        const QRect now = partRect(m_figure, part, m_factor);
        QRect& before = m_painted[static_cast<std::size_t>(index)];
        if (now != before) {
            changed += before;
            changed += now;
            before = now;
        }
    }
    if (m_figure.faceText() != m_paintedFace) {
        m_paintedFace = m_figure.faceText();
        changed += m_painted[Figure::Face];
    }
    if (!changed.isEmpty()) {
        m_stale += changed;
        update(changed);
    }
    setSpokenName(this, qs(spokenFigure(m_figure)));
}

void GallowsView::paintEvent(QPaintEvent* event) {
    const qreal ratio = devicePixelRatioF();
    if (m_drawn.isNull() || m_drawn.deviceIndependentSize() != QSizeF(size()) ||
        m_drawn.devicePixelRatio() != ratio) {
        m_drawn = QPixmap(size() * ratio);
        m_drawn.setDevicePixelRatio(ratio);
        m_drawn.fill(Qt::transparent);
        QPainter drawing(&m_drawn);
        draw(drawing, rect());
        m_stale = QRegion();
    } else if (!m_stale.isEmpty()) {
        // A strike changes one part: only its place is cleared and drawn
        // again, not the whole figure.
        QPainter drawing(&m_drawn);
        drawing.setClipRegion(m_stale);
        drawing.setCompositionMode(QPainter::CompositionMode_Source);
        for (const QRect& stale : m_stale) {
            drawing.fillRect(stale, Qt::transparent);
        }
        drawing.setCompositionMode(QPainter::CompositionMode_SourceOver);
        draw(drawing, m_stale.boundingRect());
        m_stale = QRegion();
    }
    const QRect area = event->rect();
    QPainter p(this);
    p.drawPixmap(area, m_drawn,
                 QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio));
}

void GallowsView::draw(QPainter& p, const QRect& area) {
    // Only what lies in the area is drawn: a strike redraws the place of the
    // part it adds, and antialiased strokes are dear to lay out even where
    // the clip then throws them away.
    const auto inArea = [this, &area](QRectF twips) {
        return area.intersects(pixelRect(twips, m_factor));
    };
    const auto lineInArea = [&inArea](TwipLine l) {
        return inArea(QRectF(QPointF(l.x1, l.y1), QPointF(l.x2, l.y2)).normalized());
    };
    p.setRenderHint(QPainter::Antialiasing);
    p.save();
    p.scale(m_factor / kTwipsPerPixel, m_factor / kTwipsPerPixel);

    p.setPen(Qt::NoPen);
    p.setBrush(qc(kGallowsWood));
    p.drawRect(box(kPost));
    p.drawRect(box(kBeam));
    for (const auto& brace : kBraces) {
        if (lineInArea(brace.line)) {
            p.setPen(pen(brace.colour, brace.width));
            p.drawLine(line(brace.line));
        }
    }
    if (lineInArea(kRope.line)) {
        p.setPen(pen(kRope.colour, kRope.width));
        p.drawLine(line(kRope.line));
    }

    if (m_figure.visible(Figure::Trapdoor)) {
        p.setPen(Qt::NoPen);
        p.setBrush(qc(kTrapdoorColour));
        p.drawRect(box(Figure::trapdoorBox()));
    }

    const std::array<Figure::Part, 5> limbs{Figure::Body, Figure::LeftArm, Figure::RightArm,
                                            Figure::LeftLeg, Figure::RightLeg};
    p.setPen(pen(kBlack, 2));
    for (Figure::Part part : limbs) {
        if (m_figure.visible(part) && lineInArea(m_figure.line(part))) {
            p.drawLine(line(m_figure.line(part)));
        }
    }
    if (m_figure.visible(Figure::Head) && inArea(box(m_figure.headBox()))) {
        p.setPen(pen(kBlack, 1));
        p.setBrush(Qt::white);
        p.drawEllipse(box(m_figure.headBox()));
    }
    if (m_figure.visible(Figure::Knot) && lineInArea(m_figure.line(Figure::Knot))) {
        p.setPen(pen(kKnotColour, 7));
        p.drawLine(line(m_figure.line(Figure::Knot)));
    }
    if (m_figure.visible(Figure::PanicPicture) && inArea(box(Figure::panicPictureBox()))) {
        paintPanicPicture(p, box(Figure::panicPictureBox()));
    }
    p.setPen(pen(kPanicStrokeColour, 1));
    for (Figure::Part part : {Figure::PanicStroke1, Figure::PanicStroke2, Figure::PanicStroke3}) {
        if (m_figure.visible(part) && lineInArea(m_figure.line(part))) {
            p.drawLine(line(m_figure.line(part)));
        }
    }
    p.restore();

    // The face is written in pixels, from a font and a layout kept between
    // strikes: a font scaled down from twips would be drawn as outlines,
    // and one made afresh is looked up again in the system's fonts.
    if (m_figure.visible(Figure::Face) && inArea(box(m_figure.faceBox()))) {
        const QString face = QString::fromStdString(m_figure.faceText());
        if (m_faceLine.text() != face) {
            if (m_faceFont == QFont()) {
                m_faceFont = TwipScale(m_factor).font(Fonts::face(12));
            }
            m_faceLine.setText(face);
            m_faceLine.setTextFormat(Qt::PlainText);
            m_faceLine.prepare(QTransform(), m_faceFont);
        }
        const QRectF place = box(m_figure.faceBox());
        const QPointF centre = place.center() * m_factor / kTwipsPerPixel;
        const QSizeF size = m_faceLine.size();
        p.setFont(m_faceFont);
        p.setPen(Qt::black);
        p.drawStaticText(centre - QPointF(size.width() / 2, size.height() / 2), m_faceLine);
    }
}

} // namespace quillora
