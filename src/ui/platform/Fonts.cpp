// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Fonts.h"

#include "look/Twips.h"

#include <QFontDatabase>
#include <QStringList>

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

} // namespace

void Fonts::registerEmbedded() {
    if (embeddedDisplay.isEmpty()) {
        embeddedDisplay = firstFamily(
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/Quicksand-Bold.ttf")));
    }
    if (embeddedFace.isEmpty()) {
        embeddedFace = firstFamily(
            QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/ComicNeue-Bold.otf")));
    }
}

QString Fonts::displayFamily() {
    // QFontInfo would quietly answer some other family, so ask the database.
    if (QFontDatabase::families().contains(kPreferredDisplay)) {
        return kPreferredDisplay;
    }
    return embeddedDisplay.isEmpty() ? QFont().family() : embeddedDisplay;
}

bool Fonts::displayAvailable() {
    return QFontDatabase::families().contains(kPreferredDisplay) || !embeddedDisplay.isEmpty();
}

QString Fonts::faceFamily() {
    if (QFontDatabase::families().contains(kPreferredFace)) {
        return kPreferredFace;
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
