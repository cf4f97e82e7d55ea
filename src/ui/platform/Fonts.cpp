// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"

#include "look/Twips.h"

#include <QFontDatabase>
#include <QStringList>

#include <fontconfig/fontconfig.h>

namespace quillora {

namespace {

const QString kPreferredDisplay = QStringLiteral("Arial Rounded MT Bold");
const QString kPreferredFace = QStringLiteral("Comic Sans MS");

QString embeddedDisplay;
QString embeddedFace;

QString firstFamily(int id) {
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    return families.isEmpty() ? QString() : families.front();
}

// Whether the system has a family. QFontInfo would quietly answer some other
// family, so the database is asked, once: its list is long, and the board
// wants its fonts every time it paints. A font installed while the game runs
// counts from its next start, which the font notice's restart gives.
bool installed(const QString& family) {
    static const QStringList families = QFontDatabase::families();
    return families.contains(family);
}

} // namespace

std::thread Fonts::readSystemFontsAhead() {
    // Fontconfig keeps the configuration it loads for every later caller,
    // Qt's font database among them.
    return std::thread([] { FcInit(); });
}

void Fonts::registerEmbedded() {
    if (embeddedDisplay.isEmpty()) {
        embeddedDisplay = firstFamily(
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Quicksand-Bold.ttf")));
    }
}

QString Fonts::displayFamily() {
    if (installed(kPreferredDisplay)) {
        return kPreferredDisplay;
    }
    return embeddedDisplay.isEmpty() ? QFont().family() : embeddedDisplay;
}

bool Fonts::displayAvailable() {
    return installed(kPreferredDisplay) || !embeddedDisplay.isEmpty();
}

QString Fonts::faceFamily() {
    if (installed(kPreferredFace)) {
        return kPreferredFace;
    }
    // Only the hanged figure's face wears this font: it is loaded when the
    // first board draws, not while the start screen waits for it.
    if (embeddedFace.isEmpty()) {
        embeddedFace = firstFamily(
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/ComicNeue-Bold.otf")));
    }
    return embeddedFace.isEmpty() ? QFont().family() : embeddedFace;
}

QFont Fonts::display(double points, bool bold) {
    QFont font(displayFamily());
    font.setPixelSize(pointsToPixels(points));
    font.setBold(bold);
    return font;
}

QFont Fonts::face(double points) {
    QFont font(faceFamily());
    font.setPixelSize(pointsToPixels(points));
    font.setBold(true);
    return font;
}

} // namespace quillora
