// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QListView;

namespace quillora {

// Makes `list`, which shows one folder of a file system model below its
// root, heard as a list of that folder's entries, one item a row, named as
// the row shows it, rows listed late included. Qt's own interface for item
// views counts the rows at the top of the model, which for a folder shown
// below its root is the root alone: a screen reader would hear one entry
// and the columns of details the list never shows.
void makeFolderListHeard(QListView* list);

// Tells a listening screen reader that rows `first`..`last` joined `list`.
void announceFolderRows(QListView* list, int first, int last);

} // namespace quillora
