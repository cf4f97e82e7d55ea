// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmDiseno/FolderViews.h"

#include "look/Colour.h"
#include "windows/QtColour.h"

#include <QFileSystemModel>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>

namespace quillora {

namespace {

constexpr Rgb kRefusedList{255, 128, 128};

} // namespace

FolderViews::FolderViews(QWidget* window, std::function<void(const QString&)> folderChosen,
                         std::function<void(const QString&)> fileChosen)
    : QObject(window), m_folderChosen(std::move(folderChosen)),
      m_fileChosen(std::move(fileChosen)) {
    m_dir1 = new QTreeView(window);
    m_dir1->setToolTip(QStringLiteral(" Examinador de carpetas. "));
    m_dir1->setHeaderHidden(true);
    m_dir1->setUniformRowHeights(true);
    m_dir1->setAnimated(false);

    m_file1 = new QListView(window);
    m_file1->setToolTip(QStringLiteral(" Lista de imágenes. "));
    // Rows of one height laid out in batches keep a folder of thousands of
    // pictures from holding the window up while it fills.
    m_file1->setUniformItemSizes(true);
    m_file1->setLayoutMode(QListView::Batched);
    m_file1->setBatchSize(200);
    m_file1->setAutoFillBackground(true);
    setRefused(false);
    makeModels();
}

void FolderViews::makeModels() {
    // Reading a folder again from the disk is a fresh pair of models: the
    // old ones go with whatever they had cached.
    delete m_folders;
    delete m_files;
    m_folders = new QFileSystemModel(this);
    m_folders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    m_folders->setRootPath(QStringLiteral("/"));
    m_dir1->setModel(m_folders);
    for (int column = 1; column < m_folders->columnCount(); ++column) {
        m_dir1->hideColumn(column);
    }
    connect(m_dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { folderMoved(current); });

    m_files = new QFileSystemModel(this);
    m_files->setFilter(QDir::Files | QDir::NoDotAndDotDot);
    // Name filters of a file system model ignore case: "FOTO.JPG" lists too.
    m_files->setNameFilters({QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"),
                             QStringLiteral("*.gif"), QStringLiteral("*.bmp"),
                             QStringLiteral("*.png")});
    m_files->setNameFilterDisables(false);
    m_file1->setModel(m_files);
    connect(m_file1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { fileMoved(current); });
}

void FolderViews::show(const QString& folder, int reads) {
    if (folder == m_shown && reads == m_reads) {
        return;
    }
    m_following = true;
    if (reads != m_reads && m_reads >= 0) {
        makeModels();
    }
    m_shown = folder;
    m_reads = reads;
    const QModelIndex place = m_folders->index(folder);
    for (QModelIndex up = place.parent(); up.isValid(); up = up.parent()) {
        m_dir1->expand(up);
    }
    m_dir1->setCurrentIndex(place);
    m_dir1->scrollTo(place);
    m_file1->setRootIndex(m_files->setRootPath(folder));
    m_file1->scrollToTop();
    m_following = false;
}

void FolderViews::setRefused(bool refused) {
    QPalette palette = m_file1->palette();
    const QColor base = refused ? qc(kRefusedList) : QColor(Qt::white);
    if (palette.color(QPalette::Base) == base) {
        return;
    }
    palette.setColor(QPalette::Base, base);
    m_file1->setPalette(palette);
}

void FolderViews::folderMoved(const QModelIndex& current) {
    if (m_following || !current.isValid()) {
        return;
    }
    m_folderChosen(m_folders->filePath(current));
}

void FolderViews::fileMoved(const QModelIndex& current) {
    if (m_following || !current.isValid()) {
        return;
    }
    m_fileChosen(m_files->fileName(current));
}

} // namespace quillora
