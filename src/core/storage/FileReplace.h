// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <string_view>

namespace quillora {

// The file a path stands for once every symbolic link on the way is followed,
// also when the last one points at nothing yet. Empty for a loop of links.
std::filesystem::path resolveLinks(const std::filesystem::path& path);

// The steps of a save, in the order it takes them. Until the rename the old
// file is whole where it was; from the rename on, the new one is.
enum class SaveStep { TemporaryCreated, BytesWritten, FileSynced, Renamed, FolderSynced };
inline constexpr std::array kSaveSteps{SaveStep::TemporaryCreated, SaveStep::BytesWritten,
                                       SaveStep::FileSynced, SaveStep::Renamed,
                                       SaveStep::FolderSynced};

// Looks on at a save from inside, so the kill check can end the process at
// each step in turn and the tests can see what reaches the disk and when.
// The game's own saves have no watcher.
class SaveWatcher {
public:
    virtual ~SaveWatcher() = default;
    // Each step, just after it is taken.
    virtual void reached(SaveStep step);
    // Every flush to the disk a save asks for, of the temporary file or of
    // the folder; fsync's answer.
    virtual int sync(int fd);
};

// Replaces a regular file's bytes in one step: they go to a temporary file
// beside it, which then takes its place, so a crash or a kill at any moment
// leaves either the old file or the new one. The file keeps its mode; a new
// one gets the usual mode for the player's files. False, with the old file
// untouched, when the folder or the disk refuses; the path must already be
// free of links (resolveLinks).
bool replaceFile(const std::filesystem::path& file, std::string_view bytes,
                 SaveWatcher* watcher = nullptr);

// Copies the file beside itself before the game writes over something it
// could not read: "<name>.bak", or "<name>.bak2", "<name>.bak3"... when an
// earlier copy holds something else. False if no copy could be made; else
// `kept`, when given, names the copy that holds the bytes.
bool keepCopyBeside(const std::filesystem::path& file, std::filesystem::path* kept = nullptr);

// Removes what saves cut short by a crash or a kill left in the folder: the
// game's own temporary files whose process is gone, or that are too old to
// belong to a save still under way. Nothing else is touched.
void removeStaleTemporaries(const std::filesystem::path& folder);

// Whether a file of this name can exist in its folder: its name and its
// whole path within what the file system takes.
bool fileNameFits(const std::filesystem::path& file);

} // namespace quillora
