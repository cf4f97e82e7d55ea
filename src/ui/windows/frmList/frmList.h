// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/frmList/ListModel.h"

#include <QDialog>

#include <functional>

class QListWidget;
class QMenu;
class QPushButton;
class QTimer;

namespace quillora {

struct Palette;

// "Lista de temas:", opened from the phrase window, which waits behind it.
// Whatever the player settles on here is handed back to the phrase window
// as an outcome, and the list closes.
class frmList final : public QDialog {
public:
    frmList(SharedState& shared, Round& round, Dialogs& dialogs,
            std::function<void(ListModel::Outcome)> done, QWidget* phraseWindow);

    ListModel& model() { return m_model; }
    QListWidget* list() const { return m_lstTemas; }
    QPushButton* acceptButton() const { return m_cmdOk; }
    QTimer* goTimer() const { return m_tmrGo; }
    // The list's own menu.
    QMenu* buildMenu();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paint(const Palette& palette);
    // The highlights and " Aceptar " as the model has them.
    void sync();
    void follow(ListModel::Outcome outcome);

    ListModel m_model;
    std::function<void(ListModel::Outcome)> m_done;
    QListWidget* m_lstTemas = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QTimer* m_tmrGo = nullptr;
    bool m_syncing = false;
};

} // namespace quillora
