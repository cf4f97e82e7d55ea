// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillora {

class SidePanelModel;

// The empty panel beside the figure, where the history and the selected
// themes stand when they are open: it keeps the board still behind a
// question.
class SidePanel final : public QWidget {
public:
    SidePanel(const SidePanelModel& model, QWidget* board);

    void sync();
    void paint(const QString& gameColour);

private:
    const SidePanelModel& m_model;
};

} // namespace quillora
