// SPDX-License-Identifier: MIT
#include "platform/linux/FolderTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <memory>
#include <utility>

#include "platform/Sentence.h"

namespace {

constexpr std::ptrdiff_t deepest = 16;

constexpr std::uint32_t whatHappensInside = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO |
                                            IN_CLOSE_WRITE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF |
                                            IN_EXCL_UNLINK | IN_ONLYDIR;
/// Of a folder on the way there: that the next one on it comes, or that its rights change.
constexpr std::uint32_t whatHappensAbove =
    IN_CREATE | IN_MOVED_TO | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

std::string systemsCause(int number) { return std::strerror(number); }

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

std::string joined(const std::string& folder, const std::string& name) {
    return folder.empty() ? name : folder + "/" + name;
}

bool isDeep(const std::string& path) { return std::count(path.begin(), path.end(), '/') + 1 > deepest; }

/// What lies in the folder, and the folder itself.
bool isWithin(const std::string& path, const std::string& folder) {
    return folder.empty() || path == folder || (path.starts_with(folder) && path[folder.size()] == '/');
}

char smallLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool endsWith(std::string_view name, std::string_view ending) {
    return name.size() >= ending.size() &&
           std::equal(ending.rbegin(), ending.rend(), name.rbegin(),
                      [](char wanted, char letter) { return wanted == smallLetter(letter); });
}

std::uint64_t nanoseconds(const struct statx_timestamp& time) {
    constexpr std::uint64_t inSecond = 1000000000;
    return static_cast<std::uint64_t>(time.tv_sec) * inSecond + time.tv_nsec;
}

std::optional<struct statx> statusOf(int folder, const char* name, int flags) {
    struct statx status {};
    // Where the machine that has the file would have to be asked, what is known of it will do.
    const int how = AT_STATX_DONT_SYNC | AT_NO_AUTOMOUNT | flags;
    if (statx(folder, name, how, STATX_BASIC_STATS | STATX_BTIME, &status) != 0) return std::nullopt;
    return status;
}

/// By the time at which it was made, since the number of one that is gone is given to the next one. Where
/// file systems do not keep that, by what a rename leaves as it is and another file hardly has.
FileStamp stampOf(const struct statx& status) {
    constexpr unsigned half = 32;
    const std::uint64_t device = (std::uint64_t{status.stx_dev_major} << half) | status.stx_dev_minor;
    FileStamp stamp{
        .version = {nanoseconds(status.stx_mtime), nanoseconds(status.stx_ctime), status.stx_size}};
    if ((status.stx_mask & STATX_BTIME) != 0) {
        stamp.identity = {device, status.stx_ino, nanoseconds(status.stx_btime)};
    } else {
        stamp.identity = {device, status.stx_ino, nanoseconds(status.stx_mtime), status.stx_size};
    }
    return stamp;
}

/// A folder's times change with all that happens in it.
std::array<std::uint64_t, 4> folderIdentity(const struct statx& status) {
    const FileStamp stamp = stampOf(status);
    const bool isBornSometime = (status.stx_mask & STATX_BTIME) != 0;
    return {stamp.identity[0], stamp.identity[1], isBornSometime ? stamp.identity[2] : 0};
}

Error cannotBeRead(const std::string& folder, const std::string& cause) {
    //: %2 is why, in the system's words.
    return {sentence("Folders", "The folder %1 cannot be read: %2").arg(folder).arg(cause),
            sentence("Folders", "Check who may read it.")};
}

Error cannotBeFollowed(const std::string& folder, const std::string& cause) {
    //: %2 is why, in the system's words.
    return {sentence("Folders", "What changes in the folder %1 is not noticed: %2").arg(folder).arg(cause),
            sentence("Folders", "Start Keyrill again after changes, or raise fs.inotify.max_user_watches.")};
}

}  // namespace

FolderTree::FolderTree(std::string folder, std::string ending)
    : m_folder(std::move(folder)),
      m_ending(std::move(ending)),
      m_watches(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {}

std::string FolderTree::absolute(const std::string& path) const {
    return path.empty() ? m_folder : m_folder + "/" + path;
}

bool FolderTree::takeEvents() {
    constexpr std::size_t someEvents = 65536;
    alignas(inotify_event) std::array<char, someEvents> bytes{};
    ssize_t size = 0;
    while ((size = ::read(m_watches.number(), bytes.data(), bytes.size())) > 0) {
        for (std::size_t offset = 0; offset < static_cast<std::size_t>(size);) {
            inotify_event event{};
            std::memcpy(&event, bytes.data() + offset, sizeof event);
            offset += sizeof event + event.len;
            note(event.wd, event.mask);
        }
    }
    return !m_dirty.empty();
}

void FolderTree::note(int watch, std::uint32_t what) {
    const bool hasEnded = (what & IN_IGNORED) != 0;
    if ((what & IN_Q_OVERFLOW) != 0) {
        for (const auto& [path, folder] : m_folders) m_dirty.insert(path);
        m_dirty.insert("");
    }
    if (watch == m_watchAbove) {
        m_dirty.insert("");
        if (hasEnded) m_watchAbove = -1;
    }
    const auto path = m_pathOfWatch.find(watch);
    if (path == m_pathOfWatch.end()) return;
    m_dirty.insert(path->second);
    if (!hasEnded) return;
    m_folders[path->second].watch = -1;
    m_pathOfWatch.erase(path);
}

void FolderTree::refresh() {
    while (!m_dirty.empty()) {
        const std::string path = *m_dirty.begin();
        m_dirty.erase(m_dirty.begin());
        if (path.empty() || m_folders.contains(path)) read(path);
    }
}

// A folder that was there and is another one now is read like a new one.
void FolderTree::read(const std::string& path) {
    const int follows = path.empty() ? 0 : O_NOFOLLOW;
    Descriptor open(::open(absolute(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | follows));
    const int cause = open ? 0 : errno;
    const auto status = open ? statusOf(open.number(), "", AT_EMPTY_PATH) : std::nullopt;
    const Identity identity = status ? folderIdentity(*status) : Identity{};
    if (!status || m_folders[path].identity != identity) forget(path);
    if (!status) {
        if (cause != ENOENT && cause != ENOTDIR && cause != ELOOP) {
            m_folders[path].fault = cannotBeRead(absolute(path), systemsCause(cause));
        }
        if (path.empty()) watchAbove();
        return;
    }
    if (path.empty()) stopWatchingAbove();
    Folder& folder = m_folders[path];
    folder.identity = identity;
    folder.fault.reset();
    if (folder.watch < 0) watch(path, folder);
    folder.files.clear();
    const std::map<std::string, Identity> before = std::exchange(folder.folders, {});
    if (const auto failure = readEntries(std::move(open), m_ending, folder)) {
        folder.fault = cannotBeRead(absolute(path), *failure);
    }
    followFolders(path, before);
}

std::optional<std::string> FolderTree::readEntries(Descriptor open, const std::string& ending,
                                                   Folder& folder) {
    const OpenFolder entries(fdopendir(open.number()));
    if (!entries) return systemsCause(errno);
    const int number = open.release();
    errno = 0;
    while (const dirent* entry = readdir(entries.get())) {
        if (entry->d_name[0] != '.') {
            addEntry(number, static_cast<const char*>(entry->d_name), entry->d_type, ending, folder);
        }
        errno = 0;
    }
    if (errno != 0) return systemsCause(errno);
    return std::nullopt;
}

/// Of most entries the name is enough to know that they are of no interest.
void FolderTree::addEntry(int open, const char* name, unsigned char type, const std::string& ending,
                          Folder& folder) {
    const bool mayBeFolder = type == DT_DIR || type == DT_UNKNOWN;
    const bool mayBeFile = (type == DT_REG || type == DT_LNK || type == DT_UNKNOWN) && endsWith(name, ending);
    if (!mayBeFolder && !mayBeFile) return;
    const auto status = statusOf(open, name, AT_SYMLINK_NOFOLLOW);
    if (!status) return;
    if (S_ISDIR(status->stx_mode)) {
        folder.folders[name] = folderIdentity(*status);
    } else if (mayBeFile && (S_ISREG(status->stx_mode) || S_ISLNK(status->stx_mode))) {
        folder.files[name] = stampOf(*status);
    }
}

// What has gone is forgotten first: a folder that has only been renamed keeps its watch otherwise, and would
// lose it with its old name.
void FolderTree::followFolders(const std::string& path, const std::map<std::string, Identity>& before) {
    const std::map<std::string, Identity> now = m_folders[path].folders;
    for (const auto& [name, identity] : before) {
        const auto same = now.find(name);
        if (same == now.end() || same->second != identity) forget(joined(path, name));
    }
    for (const auto& [name, identity] : now) {
        const std::string folder = joined(path, name);
        const auto known = m_folders.find(folder);
        // One that could not be read may be readable now; one that was renamed to and fro while it was read
        // is not watched yet.
        const bool isToBeRead = known == m_folders.end() || known->second.fault || known->second.watch < 0;
        if (isToBeRead && !isDeep(folder)) read(folder);
    }
}

void FolderTree::forget(const std::string& path) {
    for (auto folder = m_folders.lower_bound(path); folder != m_folders.end();) {
        if (!folder->first.starts_with(path)) break;
        if (!isWithin(folder->first, path)) {
            ++folder;
            continue;
        }
        removeWatch(folder->second.watch);
        m_dirty.erase(folder->first);
        folder = m_folders.erase(folder);
    }
}

void FolderTree::removeWatch(int watch) {
    if (watch < 0) return;
    inotify_rm_watch(m_watches.number(), watch);
    m_pathOfWatch.erase(watch);
}

void FolderTree::watch(const std::string& path, Folder& folder) {
    const std::uint32_t follows = path.empty() ? 0 : IN_DONT_FOLLOW;
    folder.watch = inotify_add_watch(m_watches.number(), absolute(path).c_str(), whatHappensInside | follows);
    if (folder.watch >= 0) {
        m_pathOfWatch[folder.watch] = path;
    } else if (!m_watches) {
        folder.fault = cannotBeFollowed(absolute(path), systemsCause(EMFILE));
    } else if (errno != ENOENT && errno != ENOTDIR) {
        folder.fault = cannotBeFollowed(absolute(path), systemsCause(errno));
    }
}

// What comes while it is looked for may come too early to be told of: looked for until nothing is found
// below.
void FolderTree::watchAbove() {
    while (true) {
        const int watch = watchOfNearest();
        if (watch == m_watchAbove) break;
        stopWatchingAbove();
        m_watchAbove = watch;
    }
    if (Descriptor(open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))) m_dirty.insert("");
}

int FolderTree::watchOfNearest() const {
    std::filesystem::path above = m_folder;
    while (above.has_relative_path()) {
        above = above.parent_path();
        const int watch = inotify_add_watch(m_watches.number(), above.c_str(), whatHappensAbove);
        if (watch >= 0) return watch;
    }
    return -1;
}

void FolderTree::stopWatchingAbove() { removeWatch(std::exchange(m_watchAbove, -1)); }

FolderListing FolderTree::files() const {
    FolderListing listing;
    for (const auto& [path, folder] : m_folders) {
        for (const auto& [name, stamp] : folder.files) listing.emplace(joined(path, name), stamp);
    }
    return listing;
}

std::vector<Error> FolderTree::faults() const {
    std::vector<Error> faults;
    for (const auto& [path, folder] : m_folders) {
        if (folder.fault) faults.push_back(*folder.fault);
    }
    return faults;
}
