// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include <functional>

namespace quillora {

class PhraseChoice;

// The automatic-phrase marker: "A", or "T" while a
// thematic tour runs; a click switches the automatic phrase off or on.
class AutoMarker final : public QLabel {
public:
    AutoMarker(PhraseChoice& choice, std::function<void()> changed, QWidget* board);

    void sync();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void toggle();

    PhraseChoice& m_choice;
    std::function<void()> m_changed;
};

} // namespace quillora
