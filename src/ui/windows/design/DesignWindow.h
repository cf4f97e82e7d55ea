// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/design/DesignModel.h"

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
class DesignWindow final : public QWidget {
public:
    // `pictures` is the folder the lists start in, `home` what "~" means.
    DesignWindow(DesignedBoard& board, SharedState& shared, Dialogs& dialogs,
                 std::function<void()> boardChanged, const QString& pictures, const QString& home,
                 QWidget* parent);
    ~DesignWindow() override;

    DesignModel& model() { return m_model; }
    // The window as the model now stands.
    void sync();

    // For the tests: the controls a player uses.
    QLineEdit* addressBox() const { return m_addressBox; }
    GoButton* goButton() const { return m_goButton; }
    QListView* folderList() const;
    QListView* fileList() const;
    FolderViews* folderViews() const { return m_lists; }
    PreviewView* preview() const { return m_previewImage; }
    QComboBox* styleList() const { return m_letterStyle; }
    DesignToggle* toggleButton(DesignModel::Toggle which) const {
        return m_toggles[static_cast<std::size_t>(which)];
    }
    QPushButton* removeButton() const { return m_removePictureButton; }
    QPushButton* saveButton() const { return m_okButton; }
    QTimer* styleTimer() const { return m_styleTimer; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildControls();
    void paintButtons();
    // A choice was made: the model has it, the board and the window show it.
    void changed();

    // The preview reads pictures for the model, so it comes first.
    PreviewView* m_previewImage = nullptr;
    DesignModel m_model;
    std::function<void()> m_boardChanged;
    QLineEdit* m_addressBox = nullptr;
    GoButton* m_goButton = nullptr;
    FolderViews* m_lists = nullptr;
    QComboBox* m_letterStyle = nullptr;
    std::array<DesignToggle*, 4> m_toggles{};
    QPushButton* m_removePictureButton = nullptr;
    QPushButton* m_okButton = nullptr;
    QTimer* m_styleTimer = nullptr;
};

} // namespace quillora
