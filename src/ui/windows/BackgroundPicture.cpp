// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/BackgroundPicture.h"

#include "look/Picture.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>

#include <cmath>

namespace quillora {

namespace {

// A picture whose decoder cannot shrink it on the way is decoded whole: up
// to this, which is also what the toolkit lets one picture take (256 MB at
// four bytes a pixel). A camera's photo is a JPEG, decoded already shrunk to
// what is shown, so no camera comes near it.
constexpr qint64 kMaxWholePixels = 64LL * 1024 * 1024;

// The part of a picture as stored that becomes the top left corner of the
// given size once the picture is turned or mirrored as its file asks: the
// decoder clips before it turns.
QRect storedCorner(QSize stored, QSize corner, QImageIOHandler::Transformations turn) {
    QRect part(QPoint(0, 0), corner);
    if (turn & QImageIOHandler::TransformationRotate90) {
        // Turned a quarter clockwise, the shown left edge was the bottom.
        part =
            QRect(part.y(), stored.height() - part.x() - part.width(), part.height(), part.width());
    }
    if (turn & QImageIOHandler::TransformationMirror) {
        part.moveLeft(stored.width() - part.x() - part.width());
    }
    if (turn & QImageIOHandler::TransformationFlip) {
        part.moveTop(stored.height() - part.y() - part.height());
    }
    return part;
}

} // namespace

bool BackgroundPicture::follow(const QString& path, bool realSize, QSize area, qreal pixelRatio) {
    if (path == m_path && realSize == m_realSize && area == m_area && pixelRatio == m_pixelRatio) {
        return false;
    }
    const bool wasShown = shown();
    m_path = path;
    m_realSize = realSize;
    m_area = area;
    m_pixelRatio = pixelRatio;
    m_fitted = path.isEmpty() ? QPixmap() : load();
    return shown() || wasShown;
}

QPixmap BackgroundPicture::load() const {
    // A pipe would keep the decoder waiting, and a cut JPEG or BMP comes out
    // half grey rather than refused: neither gets that far.
    if (!pictureFileWhole(QFile::encodeName(m_path).toStdString())) {
        return {};
    }
    QImageReader reader(m_path);
    reader.setAutoTransform(true);
    const QSize target(static_cast<int>(std::ceil(m_area.width() * m_pixelRatio)),
                       static_cast<int>(std::ceil(m_area.height() * m_pixelRatio)));
    const QSize size = reader.size();
    if (!size.isValid() || target.isEmpty()) {
        return {};
    }
    // The decoder works on the picture as stored; a photo taken upright is
    // turned only after it.
    const QImageIOHandler::Transformations turn = reader.transformation();
    const bool quarter = turn & QImageIOHandler::TransformationRotate90;
    const QSize stored = quarter ? target.transposed() : target;
    // Only what is shown is decoded, where the format allows it: the corner
    // the board shows at the real size, or, stretched, a picture shrunk to
    // twice the board (the rest of the way is smoothed here). So a photo of
    // any size opens quickly and in little memory.
    bool shrunk = false;
    if (m_realSize && reader.supportsOption(QImageIOHandler::ClipRect)) {
        const QSize shown = (quarter ? size.transposed() : size).boundedTo(target);
        reader.setClipRect(storedCorner(size, shown, turn));
        shrunk = true;
    } else if (!m_realSize && reader.supportsOption(QImageIOHandler::ScaledSize) &&
               (size.width() > 2 * stored.width() || size.height() > 2 * stored.height())) {
        reader.setScaledSize(size.boundedTo(stored * 2));
        shrunk = true;
    }
    if (!shrunk && static_cast<qint64>(size.width()) * size.height() > kMaxWholePixels) {
        return {};
    }
    QImage image = reader.read();
    if (image.isNull()) {
        return {};
    }
    if (m_realSize) {
        image = image.copy(QRect(QPoint(0, 0), image.size().boundedTo(target)));
    } else if (image.size() != target) {
        image = image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QPixmap fitted = QPixmap::fromImage(std::move(image));
    fitted.setDevicePixelRatio(m_pixelRatio);
    return fitted;
}

void BackgroundPicture::paint(QPainter& p) const {
    if (shown()) {
        p.drawPixmap(QPointF(0, 0), m_fitted);
    }
}

} // namespace quillora
