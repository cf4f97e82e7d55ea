// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/start/StartScreenModel.h"

#include <QWidget>

#include <functional>

class QLabel;
class QTimer;

namespace quillora {

// The start screen: the game's name, a progress line, and the notice for a
// missing display font.
class StartScreen final : public QWidget {
public:
    StartScreen(SharedState& shared, WebLookUp& lookUp, bool fontAvailable,
                QWidget* parent = nullptr);

    StartScreenModel& model() { return m_model; }
    // Called once the line has run and the menu may show.
    std::function<void()> onMenu;
    // "REINICIAR": start the program again. " Cerrar ": end it.
    std::function<void()> onRestart;
    std::function<void()> onClose;

    QWidget* notice() const { return m_notice; }
    QLabel* downloadButton() const { return m_downloadButton; }
    QLabel* restartButton() const { return m_restartButton; }
    QLabel* closeLabel() const { return m_closeLabel; }
    QTimer* timer() const { return m_timer; }
    // The timer's tick, for the tests.
    void tick();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    // " Cerrar ", "DESCARGAR" or "REINICIAR", clicked or pressed from the keys.
    void press(QLabel* button);
    // How a button looks at rest and while the mouse holds it down.
    // Clicks, keys and screen readers press the button.
    void listenTo(QLabel* button);
    void buildNotice();

    StartScreenModel m_model;
    WebLookUp& m_lookUp;
    QTimer* m_timer = nullptr;
    QWidget* m_notice = nullptr;
    QLabel* m_downloadButton = nullptr;
    QLabel* m_restartButton = nullptr;
    QLabel* m_pointer = nullptr;
    QLabel* m_closeLabel = nullptr;
    bool m_handedOver = false;
};

} // namespace quillora
