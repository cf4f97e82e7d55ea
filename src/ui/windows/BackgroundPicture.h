// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>

class QPainter;

namespace quillora {

// The board's background picture, read once and fitted once for
// the screen it is on: stretched over the picture area, or at its real
// size, one picture pixel to one screen pixel, so it is never blurred by a
// second scaling when painted.
class BackgroundPicture {
public:
    // Brings the picture in step; true when what is shown changed. A file
    // that cannot be read as a picture leaves the board without one.
    bool follow(const QString& path, bool realSize, QSize area, qreal pixelRatio);
    void paint(QPainter& p) const;
    bool shown() const { return !m_fitted.isNull(); }
    const QPixmap& pixmap() const { return m_fitted; }

private:
    QPixmap load() const;

    QString m_path;
    bool m_realSize = false;
    QSize m_area;
    qreal m_pixelRatio = 1;
    QPixmap m_fitted;
};

} // namespace quillora
