// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/themesList/ThemesListModel.h"

#include <QDialog>
#include <QStringList>

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
class ThemesListWindow final : public QDialog {
public:
    ThemesListWindow(SharedState& shared, PhraseChoice& choice, Dialogs& dialogs,
                     std::function<void(ThemesListModel::Outcome)> done, QWidget* phraseWindow);

    ThemesListModel& model() { return m_model; }
    QListWidget* list() const { return m_themesList; }
    QPushButton* acceptButton() const { return m_okButton; }
    QTimer* goTimer() const { return m_goTimer; }
    // The list's own menu.
    QMenu* buildMenu();
    // The files "Añadir temas…" adds; a file dialog unless set, as tests do.
    std::function<QStringList()> chooseFiles;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void paint(const Palette& palette);
    // The highlights and " Aceptar " as the model has them.
    void sync();
    void follow(ThemesListModel::Outcome outcome);
    void addThemes();

    ThemesListModel m_model;
    std::function<void(ThemesListModel::Outcome)> m_done;
    QListWidget* m_themesList = nullptr;
    QPushButton* m_okButton = nullptr;
    QTimer* m_goTimer = nullptr;
    bool m_syncing = false;
};

} // namespace quillora
