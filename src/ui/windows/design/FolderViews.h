// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QFileSystemModel;
class QListView;
class QModelIndex;
class QWidget;

namespace quillora {

// Dir1 and File1: the folders of the folder shown, with ".." to go up, and
// its pictures. Both are read on Qt's own thread, so a folder of thousands of
// files lists while the window goes on answering.
class FolderViews final : public QObject {
public:
    // `folderChosen` runs when the player opens a folder of Dir1 (a double
    // click or Enter) or goes up (Backspace), `fileChosen` with a file's name
    // when the player picks one in File1.
    FolderViews(QWidget* window, std::function<void(const QString&)> folderChosen,
                std::function<void(const QString&)> fileChosen);

    QListView* folderList() const { return m_folderView; }
    QListView* fileList() const { return m_fileView; }
    QFileSystemModel* folderModel() const { return m_folders; }
    QFileSystemModel* fileModel() const { return m_files; }

    // Both lists on `folder`; a new `reads` count reads it from the disk
    // again.
    void show(const QString& folder, int reads);
    void setRefused(bool refused);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeModels();
    void folderOpened(const QModelIndex& index);
    void fileMoved(const QModelIndex& current);

    std::function<void(const QString&)> m_folderChosen;
    std::function<void(const QString&)> m_fileChosen;
    QListView* m_folderView = nullptr;
    QListView* m_fileView = nullptr;
    QFileSystemModel* m_folders = nullptr;
    QFileSystemModel* m_files = nullptr;
    QString m_shown;
    int m_reads = -1;
    // The lists are being pointed at a folder by the window, not by the player.
    bool m_following = false;
};

} // namespace quillora
