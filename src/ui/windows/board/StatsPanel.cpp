// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/StatsPanel.h"

#include "look/Twips.h"
#include "models/board/StatsPanelModel.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "ports/Announcer.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStringList>

namespace quillora {

namespace {

// Over the gallows, under the score, where the other side panels stand.
constexpr int kLeft = 120, kTop = 840, kWidth = 2760;
constexpr int kFrameTop = 480, kFrameHeight = 3660;
// Inside the frame: the row names, then the normal and the survival columns.
constexpr int kNameLeft = 120, kNameWidth = 1080;
constexpr int kNormalLeft = 1200, kSurvivalLeft = 1980, kColumnWidth = 720;
constexpr int kRowHeight = 300;

using Row = StatsPanelModel::Row;

struct Line {
    int top;
    const char* name;
    const char* tooltip;
    // -1 for a heading, which has no values.
    int row;
};

constexpr std::array<Line, 9> kLines{{
    {360, "Puntos", " Total de puntos.  ", Row::Points},
    {690, "Errores", " Total de errores. ", Row::Errors},
    {1020, "Partidas", " Total de partidas. ", Row::Games},
    {1410, "Promedio:", nullptr, -1},
    {1740, "Puntos", " Promedio de puntos. ", Row::AveragePoints},
    {2070, "Errores", " Promedio de errores. ", Row::AverageErrors},
    {2460, "Récord:", nullptr, -1},
    {2790, "Máximo/p.", " Máximo de puntos en una partida. ", Row::Best},
    {3120, "Minimo/p.", " Minimo de puntos en una partida. ", Row::Worst},
}};

QLabel* label(const QString& text, QWidget* parent, QRect twips, double points,
              Qt::Alignment align) {
    auto* l = new QLabel(text, parent);
    placeInTwips(l, twips);
    setScaledFont(l, Fonts::display(points));
    l->setAlignment(align | Qt::AlignVCenter);
    return l;
}

} // namespace

StatsPanel::StatsPanel(StatsPanelModel& model, Announcer& announcer, std::function<void()> changed,
                       QWidget* board)
    : QWidget(board), m_model(model), m_announcer(announcer), m_changed(std::move(changed)) {
    setObjectName(QStringLiteral("statsFrame"));
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Estadísticas"));

    label(QStringLiteral("Estadísticas"), this, QRect(120, 60, 1680, 360), 11, Qt::AlignLeft);
    m_closeLabel =
        label(QStringLiteral(" Cerrar "), this, QRect(1800, 90, 840, 300), 8, Qt::AlignRight);
    m_closeLabel->setCursor(Qt::PointingHandCursor);
    m_closeLabel->installEventFilter(this);
    setAccessibleRole(m_closeLabel, QAccessible::Button);
    // The panel takes the focus as it opens, so a screen reader reads it;
    // Enter or Space on it, or on " Cerrar ", rolls it up, Esc goes on to
    // the board, which puts every panel away, and letters still guess.
    new ButtonLike(
        this, [this] { rollUp(); }, Qt::TabFocus);
    new ButtonLike(
        m_closeLabel, [this] { rollUp(); }, Qt::TabFocus);

    m_statsFrame = new QWidget(this);
    placeInTwips(m_statsFrame, QRect(0, kFrameTop, kWidth, kFrameHeight));
    label(QStringLiteral("Normal"), m_statsFrame, QRect(kNormalLeft, 0, kColumnWidth, kRowHeight),
          7, Qt::AlignHCenter);
    label(QStringLiteral("Superviv."), m_statsFrame,
          QRect(kSurvivalLeft, 0, kColumnWidth, kRowHeight), 7, Qt::AlignHCenter);
    for (const Line& line : kLines) {
        const bool heading = line.row < 0;
        QLabel* name = label(QString::fromUtf8(line.name), m_statsFrame,
                             QRect(heading ? 60 : kNameLeft, line.top, kNameWidth, kRowHeight),
                             heading ? 9 : 8, Qt::AlignLeft);
        if (heading) {
            continue;
        }
        name->setToolTip(QString::fromUtf8(line.tooltip));
        for (const int left : {kNormalLeft, kSurvivalLeft}) {
            const int index =
                line.row + (left == kSurvivalLeft ? StatsPanelModel::kSurvivalColumn : 0);
            QLabel* value =
                label(QString(), m_statsFrame,
                      QRect(left + 30, line.top + 15, kColumnWidth - 60, kRowHeight - 30), 8,
                      Qt::AlignHCenter);
            value->setObjectName(QStringLiteral("lblSDates"));
            // A figure alone says nothing: it is read with its row and column.
            value->setAccessibleDescription(QString::fromUtf8(line.tooltip).trimmed().chopped(1) +
                                            (left == kSurvivalLeft
                                                 ? QStringLiteral(", supervivencia")
                                                 : QStringLiteral(", normal")));
            m_survivalStatsLabel[static_cast<std::size_t>(index)] = value;
        }
    }
    hide();
}

void StatsPanel::paint(const QString& gameColour, const QString& shade) {
    const TwipScale scale = TwipScale::of(this);
    setStyleSheet(QStringLiteral("#statsFrame { background: %1; border-radius: %2px; }"
                                 "QLabel { color: white; background: transparent; }"
                                 "#lblSDates { background: %3; border-radius: %4px; }")
                      .arg(gameColour)
                      .arg(scale.px(90))
                      .arg(shade)
                      .arg(scale.pixels(4)));
}

void StatsPanel::rollUp() {
    m_model.close();
    m_changed();
}

void StatsPanel::sync() {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, m_model.height()));
    const bool opening = m_model.shown() && !isVisible();
    // A panel on its way up hands the keys back to the board.
    const bool focused = hasFocus() || isAncestorOf(QApplication::focusWidget());
    if (focused && (!m_model.shown() || m_model.closing())) {
        window()->setFocus();
    }
    setVisible(m_model.shown());
    if (opening) {
        setFocus();
    }
    // The figures are labels, which no key reaches: a screen reader says
    // them all as they show, as it reads a dialog's text when it opens.
    const bool unrolled = m_model.valuesShown() && !m_statsFrame->isVisible();
    m_statsFrame->setVisible(m_model.valuesShown());
    for (int i = 0; i < StatsPanelModel::kValues; ++i) {
        valueLabel(i)->setText(qs(m_model.value(i)));
    }
    if (unrolled) {
        m_announcer.announce(spokenFigures().toStdString(), Announcer::Urgency::Polite);
    }
    if (isVisible()) {
        raise();
    }
}

QString StatsPanel::spokenFigures() const {
    QStringList said{QStringLiteral("Estadísticas.")};
    for (const Line& line : kLines) {
        const QString name = QString::fromUtf8(line.name);
        if (line.row < 0) {
            said << name;
            continue;
        }
        said << QStringLiteral("%1 %2 normal, %3 supervivencia.")
                    .arg(name, qs(m_model.value(static_cast<Row>(line.row), false)),
                         qs(m_model.value(static_cast<Row>(line.row), true)));
    }
    return said.join(QLatin1Char(' '));
}

bool StatsPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_closeLabel && event->type() == QEvent::MouseButtonRelease) {
        rollUp();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void StatsPanel::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

} // namespace quillora
