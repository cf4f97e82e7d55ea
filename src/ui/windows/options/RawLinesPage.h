// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/options/RawLinesModel.h"

#include <QWidget>

#include <functional>

class QLineEdit;
class QListWidget;

namespace quillora {

// "LIBRE!": the twenty lines of the configuration file beside their names,
// and one box to retype the selected line.
class RawLinesPage final : public QWidget {
public:
    RawLinesPage(RawLinesModel& model, std::function<void()> changed, QWidget* parent);

    void sync();

    QListWidget* labelList() const { return m_namesList; }
    QListWidget* valueList() const { return m_valuesList; }
    QLineEdit* valueBox() const { return m_valueBox; }

private:
    void select(int row);

    RawLinesModel& m_model;
    std::function<void()> m_changed;
    QListWidget* m_namesList = nullptr;
    QListWidget* m_valuesList = nullptr;
    QLineEdit* m_valueBox = nullptr;
};

} // namespace quillora
