// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/frmOptions/OptionsModel.h"

#include <QWidget>

#include <functional>

class QLineEdit;
class QListWidget;

namespace quillora {

// "LIBRE!": the twenty lines of the configuration file beside their names,
// and one box to retype the selected line.
class LibrePage final : public QWidget {
public:
    LibrePage(OptionsModel& model, std::function<void()> changed, QWidget* parent);

    void sync();

    QListWidget* labelList() const { return m_lstNames; }
    QListWidget* valueList() const { return m_lstValues; }
    QLineEdit* valueBox() const { return m_txtValue; }

private:
    void select(int row);

    OptionsModel& m_model;
    std::function<void()> m_changed;
    QListWidget* m_lstNames = nullptr;
    QListWidget* m_lstValues = nullptr;
    QLineEdit* m_txtValue = nullptr;
};

} // namespace quillora
