// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/ThemeBox.h"

#include "look/Twips.h"
#include "models/board/SidePanels.h"
#include "models/board/TipModel.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "scoring/Points.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMenu>

namespace quillora {

namespace {
constexpr int kLeft = 8160, kTop = 300, kWidth = 3135, kHeight = 720;
// Without a score to show, the theme box and the JUGAR panel trade corners:
// JUGAR beside the status, the theme under the phrase beside the strikes.
constexpr int kCompactLeft = 8910, kCompactTop = 3540, kCompactWidth = 2385;
constexpr int kLabelMargin = 60, kLabelTop = 210;
constexpr double kThemePoints = 11;
constexpr int kSmallestPixels = 8;
} // namespace

ThemeBox::ThemeBox(const Round& round, const Scoring& scoring, SidePanels& panels, TipModel& tip,
                   std::function<void()> changed, QWidget* board)
    : RoundedLabel(board), m_round(round), m_scoring(scoring), m_panels(panels), m_tip(tip),
      m_changed(std::move(changed)) {
    setObjectName(QStringLiteral("shpTheme"));
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Tema"));
    // The caption is the box's own text, kept with its ground in the box's
    // looks: the lamp recolours the box after every letter.
    setText(QStringLiteral("Tema"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setScaledFont(this, Fonts::display(7));
    m_themeLabel = new RoundedLabel(this);
    m_themeLabel->setAlignment(Qt::AlignCenter);
    // Its font is fitted to the theme's name as the name changes.
    m_themeLabel->setFont(Fonts::display(kThemePoints));
    m_themeLabel->setAccessibleDescription(QStringLiteral("Tema"));
    m_themeLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_themeLabel, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildMenu()->popup(m_themeLabel->mapToGlobal(at)); });
}

QMenu* ThemeBox::buildMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Temas seleccionados")), &QAction::triggered, this,
            [this] {
                m_panels.openThemes();
                m_changed();
            });
    connect(menu->addAction(QStringLiteral("Dame un consejo")), &QAction::triggered, this, [this] {
        m_tip.startTip();
        m_changed();
    });
    return menu;
}

void ThemeBox::sync() {
    const bool compact = m_scoring.compactLayout();
    const int width = compact ? kCompactWidth : kWidth;
    placeInTwips(
        this, QRect(compact ? kCompactLeft : kLeft, compact ? kCompactTop : kTop, width, kHeight));
    placeInTwips(m_themeLabel, QRect(kLabelMargin, kLabelTop, width - 2 * kLabelMargin,
                                     kHeight - kLabelTop - 30));
    const QString theme = qs(m_round.themeLabel());
    if (theme == m_themeLabel->text() && m_themeLabel->width() == m_fittedWidth) {
        return;
    }
    // Long theme names step down in size until they fit the box.
    const TwipScale scale = TwipScale::of(this);
    QFont font = scale.font(Fonts::display(kThemePoints));
    const int smallest = scale.pixels(kSmallestPixels);
    while (font.pixelSize() > smallest &&
           QFontMetrics(font).horizontalAdvance(theme) > m_themeLabel->width()) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    m_themeLabel->setFont(font);
    m_themeLabel->setText(theme);
    m_fittedWidth = m_themeLabel->width();
}

} // namespace quillora
