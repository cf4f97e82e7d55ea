// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>
#include <string>
#include <vector>

class QLabel;
class QListWidget;

namespace quillora {

// A side panel beside the figure that shows a list: its title, the list and
// " Cerrar ". Keys typed in the list are offered to the board first, so its
// shortcuts keep working while the list has the focus.
class SideListPanel : public QWidget {
public:
    SideListPanel(const QString& name, const QString& title, std::function<void()> close,
                  std::function<bool(QKeyEvent*)> boardKeys, QWidget* board);

    QListWidget* list() const { return m_list; }
    QLabel* closeLabel() const { return m_closeLabel; }
    void paint(const QString& gameColour, const QString& shade);

protected:
    // Shows or hides the panel with these entries. On the way in, and when
    // an entry is added, the list takes the focus and shows its last entry.
    void present(bool shown, const std::vector<std::string>& entries);
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A click on the panel stays on it: the board behind would take it for
    // a click on its background, which puts the panels away.
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::function<void()> m_close;
    std::function<bool(QKeyEvent*)> m_boardKeys;
    QLabel* m_closeLabel = nullptr;
    QListWidget* m_list = nullptr;
    std::vector<std::string> m_shown;
};

} // namespace quillora
