// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SidePanel.h"

#include "look/Twips.h"
#include "models/board/SidePanelModel.h"
#include "platform/TwipScale.h"
#include "windows/board/BoardAccessible.h"

namespace quillora {

namespace {
// Over the gallows, under the score, where the list panels stand.
constexpr int kLeft = 120, kTop = 840, kWidth = 2760, kHeight = 3900;
} // namespace

SidePanel::SidePanel(const SidePanelModel& model, QWidget* board) : QWidget(board), m_model(model) {
    setObjectName(QStringLiteral("sideFrame"));
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Panel lateral"));
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    hide();
}

void SidePanel::paint(const QString& gameColour) {
    setStyleSheet(QStringLiteral("#sideFrame { background: %1; border-radius: %2px; }")
                      .arg(gameColour)
                      .arg(TwipScale::of(this).px(90)));
}

void SidePanel::sync() {
    setVisible(m_model.showing(SidePanelModel::Content::Empty));
    if (isVisible()) {
        raise();
    }
}

} // namespace quillora
