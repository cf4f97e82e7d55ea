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

QString lookAlikeDisplay;
QString lookAlikeFace;

// Whether the system has a family. QFontInfo would quietly answer some other
// family, so the database is asked, once: its list is long, and the board
// wants its fonts every time it paints. A font installed while the game runs
// counts from its next start, which the font notice's restart gives.
bool installed(const QString& family) {
    static const QStringList families = QFontDatabase::families();
    return families.contains(family);
}

#ifdef QUILLORA_SYSTEM_FONTS
// The families Debian's fonts-quicksand and fonts-comic-neue install. When
// one is missing the game falls back as it does for any missing font.
QString installedOrNothing(const QString& family) {
    return installed(family) ? family : QString();
}

QString displayLookAlike() {
    return installedOrNothing(QStringLiteral("Quicksand"));
}

QString faceLookAlike() {
    return installedOrNothing(QStringLiteral("Comic Neue"));
}
#else
QString registered(const QString& resource) {
    const QStringList families =
        QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(resource));
    return families.isEmpty() ? QString() : families.front();
}

QString displayLookAlike() {
    return registered(QStringLiteral(":/fonts/Quicksand-Bold.ttf"));
}

QString faceLookAlike() {
    return registered(QStringLiteral(":/fonts/ComicNeue-Bold.otf"));
}
#endif

} // namespace

std::thread Fonts::readSystemFontsAhead() {
    // Fontconfig keeps the configuration it loads for every later caller,
    // Qt's font database among them.
    return std::thread([] { FcInit(); });
}

void Fonts::findLookAlikes() {
    if (lookAlikeDisplay.isEmpty()) {
        lookAlikeDisplay = displayLookAlike();
    }
}

QString Fonts::displayFamily() {
    if (installed(kPreferredDisplay)) {
        return kPreferredDisplay;
    }
    return lookAlikeDisplay.isEmpty() ? QFont().family() : lookAlikeDisplay;
}

bool Fonts::displayAvailable() {
    return installed(kPreferredDisplay) || !lookAlikeDisplay.isEmpty();
}

QString Fonts::faceFamily() {
    if (installed(kPreferredFace)) {
        return kPreferredFace;
    }
    // Only the hanged figure's face wears this font: it is loaded when the
    // first board draws, not while the start screen waits for it.
    if (lookAlikeFace.isEmpty()) {
        lookAlikeFace = faceLookAlike();
    }
    return lookAlikeFace.isEmpty() ? QFont().family() : lookAlikeFace;
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
