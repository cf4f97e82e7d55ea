// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/frmDiseno/frmDiseno.h"

#include <QPointer>

#include <functional>

namespace quillora {

class QlvsModel;

// The board's side of the design window: it opens one over the board, and
// closes it before the board's model goes, since the window works on it.
class DesignLink {
public:
    DesignLink(QlvsModel& model, QWidget* board, std::function<void()> boardChanged);
    ~DesignLink();
    DesignLink(const DesignLink&) = delete;
    DesignLink& operator=(const DesignLink&) = delete;

    // The part of the board the window keeps clear of where it can: the
    // phrase, whose letters show the style.
    void keepInSight(QWidget* phrase) { m_phrase = phrase; }
    // eMenuColors: "Cambiar diseño" and Ctrl+D. An open window comes to the
    // front rather than a second one.
    void eMenuColors();
    // The board took a drop the window may have been handed.
    void sync();
    frmDiseno* window() const { return m_window; }

private:
    QlvsModel& m_model;
    QWidget* m_board;
    std::function<void()> m_boardChanged;
    QWidget* m_phrase = nullptr;
    QPointer<frmDiseno> m_window;
};

} // namespace quillora
