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

// A phone's largest photos stay under this and decode in a fraction of a
// second; a file that claims more is more likely a trap than a background,
// and decoding it would hold the window up and eat the memory.
constexpr qint64 kMaxPixels = 64LL * 1000 * 1000;

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
    if (!size.isValid() || target.isEmpty() ||
        static_cast<qint64>(size.width()) * size.height() > kMaxPixels) {
        return {};
    }
    // A photo many times the board's size is decoded straight to what is
    // shown where the format allows it, so a large file opens quickly.
    if (m_realSize && reader.supportsOption(QImageIOHandler::ClipRect)) {
        reader.setClipRect(QRect(QPoint(0, 0), size.boundedTo(target)));
    } else if (!m_realSize && reader.supportsOption(QImageIOHandler::ScaledSize) &&
               size.width() >= 2 * target.width() && size.height() >= 2 * target.height()) {
        reader.setScaledSize(target * 2);
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
