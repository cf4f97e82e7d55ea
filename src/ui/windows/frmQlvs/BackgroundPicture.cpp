// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/BackgroundPicture.h"

#include <QImageReader>
#include <QPainter>

#include <cmath>

namespace quillora {

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
    QImageReader reader(m_path);
    reader.setAutoTransform(true);
    const QSize target(static_cast<int>(std::ceil(m_area.width() * m_pixelRatio)),
                       static_cast<int>(std::ceil(m_area.height() * m_pixelRatio)));
    const QSize size = reader.size();
    if (!size.isValid() || target.isEmpty()) {
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
