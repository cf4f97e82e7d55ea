// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class QLabel;
class QWidget;

namespace quillora {

class SurvivalSwitch;

// The two labels of survival mode without points: "Reiniciar"
// starts the game over, "Consigue puntos" goes back to normal play.
class AgainLabels final : public QObject {
public:
    AgainLabels(SurvivalSwitch& survival, std::function<void()> changed, QWidget* board);

    void sync();
    void paint(const QString& gameColour);

    QLabel* restartLabel() const { return m_restart; }
    QLabel* getPointsLabel() const { return m_getPoints; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A click or a key on one of the two labels.
    void press(QObject* label);

    SurvivalSwitch& m_survival;
    std::function<void()> m_changed;
    QLabel* m_restart = nullptr;
    QLabel* m_getPoints = nullptr;
};

} // namespace quillora
