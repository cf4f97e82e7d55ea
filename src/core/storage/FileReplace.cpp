// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/FileReplace.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <climits>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace quillora {

namespace {

namespace fs = std::filesystem;

// The kernel follows at most this many links in a row; so do we.
constexpr int kMostLinks = 40;
// A save takes milliseconds. A temporary file this old is a leftover even if
// its process number has since gone to another program.
constexpr auto kStaleAge = std::chrono::hours(1);
constexpr std::string_view kTemporaryPrefix = ".quillora-";
constexpr std::string_view kTemporarySuffix = ".tmp";
constexpr int kMostCopies = 99;

// A name for the file a save writes first: hidden, in the folder of the real
// one so the final rename never crosses file systems, and carrying the number
// of the process writing it, so the tidy-up at start can tell a leftover from
// the save of another copy of the game still running.
fs::path temporaryName(const fs::path& folder) {
    static std::atomic<unsigned> counter{0};
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    return folder / (std::string(kTemporaryPrefix) + std::to_string(::getpid()) + "-" +
                     std::to_string(ticks) + "-" + std::to_string(++counter) +
                     std::string(kTemporarySuffix));
}

bool allDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// A temporary file's name read back. Nothing for a name the game never
// writes; no process for the names of the game's earlier builds, which did
// not record it.
struct TemporaryName {
    std::optional<long long> process;
};
std::optional<TemporaryName> parseTemporaryName(std::string_view name) {
    if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix)) {
        return std::nullopt;
    }
    name.remove_prefix(kTemporaryPrefix.size());
    name.remove_suffix(kTemporarySuffix.size());
    std::vector<std::string_view> fields;
    for (std::size_t start = 0;;) {
        const std::size_t dash = name.find('-', start);
        fields.push_back(name.substr(start, dash - start));
        if (dash == std::string_view::npos) {
            break;
        }
        start = dash + 1;
    }
    for (std::string_view field : fields) {
        if (!allDigits(field)) {
            return std::nullopt;
        }
    }
    if (fields.size() == 2) {
        return TemporaryName{};
    }
    if (fields.size() != 3) {
        return std::nullopt;
    }
    long long process = 0;
    const auto [end, error] =
        std::from_chars(fields[0].data(), fields[0].data() + fields[0].size(), process);
    if (error != std::errc() || end != fields[0].data() + fields[0].size()) {
        process = 0; // too large to be a process: nobody is writing it
    }
    return TemporaryName{process};
}

bool processRunning(long long process) {
    if (process <= 0 || process > INT_MAX) {
        return false;
    }
    // EPERM: it runs, under another user.
    return ::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM;
}

bool writeAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The rename itself reaches the disk only with its folder.
void syncFolder(const fs::path& folder, SaveWatcher& watcher) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        watcher.sync(fd);
        ::close(fd);
    }
}

bool sameBytes(const fs::path& a, const fs::path& b) {
    std::error_code error;
    const auto size = fs::file_size(a, error);
    if (error || fs::file_size(b, error) != size || error) {
        return false;
    }
    std::ifstream inA(a, std::ios::binary);
    std::ifstream inB(b, std::ios::binary);
    std::string bufferA(64 * 1024, '\0');
    std::string bufferB(bufferA.size(), '\0');
    while (inA && inB) {
        inA.read(bufferA.data(), static_cast<std::streamsize>(bufferA.size()));
        inB.read(bufferB.data(), static_cast<std::streamsize>(bufferB.size()));
        if (inA.gcount() != inB.gcount() ||
            bufferA.compare(0, static_cast<std::size_t>(inA.gcount()), bufferB, 0,
                            static_cast<std::size_t>(inB.gcount())) != 0) {
            return false;
        }
    }
    return !inA.bad() && !inB.bad() && inA.eof() && inB.eof();
}

} // namespace

fs::path resolveLinks(const fs::path& path) {
    fs::path current = path;
    for (int hop = 0; hop < kMostLinks; ++hop) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(current, error))) {
            return current;
        }
        const fs::path target = fs::read_symlink(current, error);
        if (error) {
            return current;
        }
        current = target.is_absolute() ? target : current.parent_path() / target;
    }
    return {};
}

void SaveWatcher::reached(SaveStep) {}

int SaveWatcher::sync(int fd) {
    return ::fsync(fd);
}

bool replaceFile(const fs::path& file, std::string_view bytes, SaveWatcher* watcher) {
    SaveWatcher unwatched;
    SaveWatcher& watch = watcher ? *watcher : unwatched;
    if (!file.has_filename()) {
        return false;
    }
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    struct stat old {};
    const bool replacing = ::stat(file.c_str(), &old) == 0;
    if (replacing && !S_ISREG(old.st_mode)) {
        return false;
    }
    for (int attempt = 0; attempt < 8; ++attempt) {
        const fs::path temporary = temporaryName(folder);
        // A new file gets what the player's umask makes of 0666; one that is
        // replaced keeps its mode, which may well be private.
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                              replacing ? S_IRUSR | S_IWUSR : 0666);
        if (fd < 0) {
            if (errno == EEXIST) {
                continue;
            }
            return false;
        }
        watch.reached(SaveStep::TemporaryCreated);
        const bool written =
            writeAll(fd, bytes) && (!replacing || ::fchmod(fd, old.st_mode & 07777) == 0);
        if (written) {
            watch.reached(SaveStep::BytesWritten);
        }
        // The bytes reach the disk before the name does: a rename that got
        // there first would leave an empty file after a power cut.
        const bool synced = written && watch.sync(fd) == 0;
        if (synced) {
            watch.reached(SaveStep::FileSynced);
        }
        const bool closed = ::close(fd) == 0;
        if (!synced || !closed || ::rename(temporary.c_str(), file.c_str()) != 0) {
            ::unlink(temporary.c_str());
            return false;
        }
        watch.reached(SaveStep::Renamed);
        syncFolder(folder, watch);
        watch.reached(SaveStep::FolderSynced);
        return true;
    }
    return false;
}

bool keepCopyBeside(const fs::path& file, fs::path* kept) {
    for (int n = 1; n <= kMostCopies; ++n) {
        fs::path copy = file;
        copy += n == 1 ? std::string(".bak") : ".bak" + std::to_string(n);
        std::error_code error;
        const fs::file_status status = fs::symlink_status(copy, error);
        if (fs::exists(status)) {
            // The same bytes kept by an earlier save that then failed: no
            // need for another copy of them.
            if (fs::is_regular_file(status) && sameBytes(file, copy)) {
                if (kept) {
                    *kept = copy;
                }
                return true;
            }
            continue;
        }
        if (fs::copy_file(file, copy, fs::copy_options::none, error)) {
            if (kept) {
                *kept = copy;
            }
            return true;
        }
        // Half a copy would pass for a whole one next time.
        if (error != std::errc::file_exists) {
            fs::remove(copy, error);
            return false;
        }
    }
    return false;
}

void removeStaleTemporaries(const fs::path& folder) {
    if (folder.empty()) {
        return;
    }
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    if (error) {
        return;
    }
    const auto now = fs::file_time_type::clock::now();
    for (const fs::directory_entry& entry : entries) {
        const auto name = parseTemporaryName(entry.path().filename().string());
        if (!name || !entry.is_regular_file(error) || entry.is_symlink(error)) {
            continue;
        }
        const auto written = entry.last_write_time(error);
        const bool old = !error && now - written > kStaleAge;
        if (!name->process || !processRunning(*name->process) || old) {
            fs::remove(entry.path(), error);
        }
    }
}

bool fileNameFits(const fs::path& file) {
    // The limit belongs to the file system the folder is on; a folder not
    // made yet will be made inside the nearest one that exists.
    fs::path existing = file.parent_path();
    std::error_code error;
    while (!existing.empty() && !fs::exists(existing, error) && existing.has_relative_path()) {
        existing = existing.parent_path();
    }
    long longestName = ::pathconf(existing.empty() ? "." : existing.c_str(), _PC_NAME_MAX);
    if (longestName <= 0) {
        longestName = NAME_MAX;
    }
    return !file.filename().empty() &&
           file.filename().string().size() <= static_cast<std::size_t>(longestName) &&
           file.string().size() < PATH_MAX;
}

} // namespace quillora
