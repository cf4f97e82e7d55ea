// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillora {

class QlvsModel;

// The 42 letter cells with their underlines, in the letter style in use.
class PhraseView final : public QWidget {
public:
    PhraseView(const QlvsModel& model, QWidget* parent);

    static constexpr int kLeftTwips = 3000;
    static constexpr int kTopTwips = 1440;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QlvsModel& m_model;
};

} // namespace quillora
