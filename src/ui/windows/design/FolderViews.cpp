// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/FolderViews.h"

#include "look/Colour.h"
#include "windows/CurrentRowDelegate.h"
#include "windows/QtColour.h"
#include "windows/design/FolderListAccessible.h"

#include <QDir>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QListView>

namespace quillora {

namespace {

constexpr Rgb kRefusedList{255, 128, 128};

// Rows of one height laid out in batches keep a folder of thousands of
// entries from holding the window up while it fills.
QListView* makeList(QWidget* window, const QString& name, const QString& tooltip) {
    auto* list = new QListView(window);
    makeFolderListHeard(list);
    list->setToolTip(tooltip);
    list->setAccessibleName(name);
    CurrentRowDelegate::mark(list);
    list->setUniformItemSizes(true);
    list->setLayoutMode(QListView::Batched);
    list->setBatchSize(200);
    return list;
}

} // namespace

FolderViews::FolderViews(QWidget* window, std::function<void(const QString&)> folderChosen,
                         std::function<void(const QString&)> fileChosen)
    : QObject(window), m_folderChosen(std::move(folderChosen)),
      m_fileChosen(std::move(fileChosen)) {
    m_folderView = makeList(window, QStringLiteral("Examinador de carpetas"),
                            QStringLiteral(" Examinador de carpetas. "));
    // A folder opens on purpose, not while the arrows pass over it.
    connect(m_folderView, &QListView::activated, this,
            [this](const QModelIndex& index) { folderOpened(index); });
    m_fileView = makeList(window, QStringLiteral("Lista de imágenes"),
                          QStringLiteral(" Lista de imágenes. "));
    // The arrows choose as they pass; Enter chooses the picture the list
    // stands on, which is how a list entered by Tab takes its first one:
    // passing through the window by Tab changes no picture.
    connect(m_fileView, &QListView::activated, this, [this](const QModelIndex& index) {
        if (index.isValid()) {
            m_fileChosen(m_files->fileName(index));
        }
    });
    for (QListView* list : {m_folderView, m_fileView}) {
        list->installEventFilter(this);
    }
    m_fileView->setAutoFillBackground(true);
    setRefused(false);
    makeModels();
}

void FolderViews::makeModels() {
    // Reading a folder again from the disk is a fresh pair of models: the
    // old ones go with whatever they had cached.
    delete m_folders;
    delete m_files;
    m_folders = new QFileSystemModel(this);
    m_folders->setFilter(QDir::AllDirs | QDir::NoDot);
    m_folderView->setModel(m_folders);

    m_files = new QFileSystemModel(this);
    m_files->setFilter(QDir::Files | QDir::NoDotAndDotDot);
    // Name filters of a file system model ignore case: "FOTO.JPG" lists too.
    m_files->setNameFilters({QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"),
                             QStringLiteral("*.gif"), QStringLiteral("*.bmp"),
                             QStringLiteral("*.png")});
    m_files->setNameFilterDisables(false);
    m_fileView->setModel(m_files);
    connect(m_fileView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { fileMoved(current); });
    // The folder is read bit by bit, long after the lists first showed.
    for (QListView* list : {m_folderView, m_fileView}) {
        connect(list->model(), &QAbstractItemModel::rowsInserted, this,
                [list](const QModelIndex& parent, int first, int last) {
                    if (parent == list->rootIndex()) {
                        announceFolderRows(list, first, last);
                    }
                });
    }
}

void FolderViews::show(const QString& folder, int reads) {
    if (folder == m_shown && reads == m_reads) {
        return;
    }
    m_following = true;
    // A file system model goes on listing the folders on the way to its
    // last root, whatever its filter, so a folder left for the one above
    // would show among the pictures: each folder gets fresh models.
    if (m_reads >= 0) {
        makeModels();
    }
    m_shown = folder;
    m_reads = reads;
    m_folderView->setRootIndex(m_folders->setRootPath(folder));
    m_folderView->scrollToTop();
    m_fileView->setRootIndex(m_files->setRootPath(folder));
    m_fileView->scrollToTop();
    m_following = false;
}

void FolderViews::setRefused(bool refused) {
    QPalette palette = m_fileView->palette();
    const QColor base = refused ? qc(kRefusedList) : QColor(Qt::white);
    if (palette.color(QPalette::Base) == base) {
        return;
    }
    palette.setColor(QPalette::Base, base);
    m_fileView->setPalette(palette);
}

void FolderViews::folderOpened(const QModelIndex& index) {
    if (index.isValid()) {
        // ".." comes back as the folder above.
        m_folderChosen(QDir::cleanPath(m_folders->filePath(index)));
    }
}

bool FolderViews::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_fileView && event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason &&
        !m_fileView->currentIndex().isValid()) {
        const QModelIndex first = m_files->index(0, 0, m_fileView->rootIndex());
        if (first.isValid()) {
            m_following = true;
            m_fileView->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
            m_following = false;
        }
    }
    // Backspace goes up a folder from either list, as ".." does.
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Backspace && !m_shown.isEmpty()) {
        const QString above = QDir::cleanPath(m_shown + QStringLiteral("/.."));
        if (above != m_shown) {
            m_folderChosen(above);
        }
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void FolderViews::fileMoved(const QModelIndex& current) {
    if (m_following || !current.isValid()) {
        return;
    }
    m_fileChosen(m_files->fileName(current));
}

} // namespace quillora
