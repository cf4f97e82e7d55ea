// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/options/OptionsModel.h"

#include <QWidget>

#include <array>
#include <functional>
#include <map>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTimer;

namespace quillora {

class CheckPicture;
class ColourEditor;
class RawLinesPage;

// "Configuración:", the options window. A list of four pages on its left,
// the page chosen beside it, and " &Menú" and "G&uardar" below the list.
class OptionsWindow final : public QWidget {
public:
    using Page = OptionsModel::Page;

    OptionsWindow(SharedState& shared, Dialogs& dialogs, Random& random, QWidget* parent = nullptr);
    ~OptionsWindow() override;

    OptionsModel& model() { return m_model; }

    // The hand-over tick has come: the menu is to take this window's place, and this
    // window is done.
    std::function<void()> onMenu;

    // Brings every control in step with the model (LoadColor among them).
    void sync();

    // For the tests.
    QListWidget* pageList() const { return m_pagesList; }
    QWidget* page(Page page) const { return m_pages[static_cast<std::size_t>(page)]; }
    CheckPicture* checkBox(int index) const;
    // The text fields by their entry number: 14, 18, 19 and 20.
    QLineEdit* field(int index) const;
    QPushButton* menuButton() const { return m_menuButton; }
    QPushButton* saveButton() const { return m_saveButton; }
    QPushButton* editorButton() const { return m_coloursButton; }
    ColourEditor* colourEditor() const { return m_colourEditor; }
    RawLinesPage* rawLinesPage() const { return m_rawLinesPage; }
    QTimer* outTimer() const { return m_outTimer; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildPages();
    void buildEntry(const OptionsModel::Entry& entry, QWidget* page, int row);
    void follow(const OptionsModel::KeyAction& action);
    void focusField(OptionsModel::Field field);
    void fieldEdited(int index, const QString& text);
    void loadColor();

    OptionsModel m_model;
    QListWidget* m_pagesList = nullptr;
    std::array<QWidget*, OptionsModel::kPages> m_pages{};
    std::map<int, CheckPicture*> m_checks;
    std::map<int, QLineEdit*> m_fields;
    std::map<int, QLabel*> m_captions;
    QPushButton* m_coloursButton = nullptr;
    ColourEditor* m_colourEditor = nullptr;
    RawLinesPage* m_rawLinesPage = nullptr;
    QPushButton* m_menuButton = nullptr;
    QPushButton* m_saveButton = nullptr;
    QTimer* m_outTimer = nullptr;
    // The colours last painted, so styles are set again only when they change.
    Rgb m_paintedGame{-1, -1, -1};
    Rgb m_paintedCommand{-1, -1, -1};
};

} // namespace quillora
