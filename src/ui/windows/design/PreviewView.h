// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/PictureLoader.h"
#include "windows/BackgroundPicture.h"

#include <QWidget>

#include <string>

namespace quillora {

// Image1: the board's background in miniature. The picture is fitted to the
// board's picture area exactly as the board fits it, stretched or at its real
// size, and then drawn small, so the preview shows what the board will.
class PreviewView final : public QWidget, public PictureLoader {
public:
    explicit PreviewView(QWidget* parent);

    // A picture tried for the board: read on the side, and shown only when
    // it could be read, so a bad file leaves the preview as it was.
    bool load(const std::string& path, bool realSize) override;
    // Keeps the preview on the window's picture: emptied, or fitted again
    // when the real size is switched.
    void follow(const std::string& path, bool realSize);
    const BackgroundPicture& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BackgroundPicture m_picture;
};

} // namespace quillora
