// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/frmDiseno/DisenoModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QComboBox;
class QLineEdit;
class QListView;
class QPushButton;
class QTimer;

namespace quillora {

class DesignToggle;
class FolderViews;
class GoButton;
class PreviewView;

// "Diseño:", over the board it works on. Every choice is handed to the
// model and `boardChanged` brings the board in step at once.
class frmDiseno final : public QWidget {
public:
    // `pictures` is the folder the lists start in, `home` what "~" means.
    frmDiseno(QlvsModel& board, std::function<void()> boardChanged, const QString& pictures,
              const QString& home, QWidget* parent);
    ~frmDiseno() override;

    DisenoModel& model() { return m_model; }
    // The window as the model now stands.
    void sync();

    // For the tests: the controls a player uses.
    QLineEdit* addressBox() const { return m_txtDireccion; }
    GoButton* goButton() const { return m_cmdGo; }
    QListView* folderList() const;
    QListView* fileList() const;
    FolderViews* folderViews() const { return m_lists; }
    PreviewView* preview() const { return m_image1; }
    QComboBox* styleList() const { return m_estilo; }
    DesignToggle* toggleButton(DisenoModel::Toggle which) const {
        return m_toggles[static_cast<std::size_t>(which)];
    }
    QPushButton* quitarButton() const { return m_cmdNormal; }
    QPushButton* saveButton() const { return m_cmdOk; }
    QTimer* styleTimer() const { return m_tmrStyle; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildControls();
    void paintButtons();
    // A choice was made: the model has it, the board and the window show it.
    void changed();

    // The preview reads pictures for the model, so it comes first.
    PreviewView* m_image1 = nullptr;
    DisenoModel m_model;
    std::function<void()> m_boardChanged;
    QLineEdit* m_txtDireccion = nullptr;
    GoButton* m_cmdGo = nullptr;
    FolderViews* m_lists = nullptr;
    QComboBox* m_estilo = nullptr;
    std::array<DesignToggle*, 4> m_toggles{};
    QPushButton* m_cmdNormal = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QTimer* m_tmrStyle = nullptr;
};

} // namespace quillora
