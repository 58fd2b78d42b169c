// SPDX-License-Identifier: MIT
#include "platform/linux/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view beginning = ".keyrill-unfinished-";

Error systemsError() { return {std::strerror(errno), ""}; }

/// The name of a file that says which file it is. Nobody else's file has the name of its own number, whether
/// it is called alike or is a copy of one of these.
std::string nameOf(const struct stat& status) {
    return std::string(beginning) + std::to_string(status.st_ino);
}

/// A writer holds the lock of its file for as long as it lives.
bool isLeftOver(const Descriptor& file, const std::string& name) {
    struct stat status {};
    return file && fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && name == nameOf(status) &&
           flock(file.number(), LOCK_EX | LOCK_NB) == 0;
}

void removeIfLeftOver(const fs::path& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (isLeftOver(file, path.filename())) unlink(path.c_str());
}

std::string folderOf(const std::string& file) {
    const std::string folder = fs::path(file).parent_path();
    return folder.empty() ? "." : folder;
}

/// So that the new name is on the disk as well as the content. The content is safe without it.
void syncFolder(const std::string& path) {
    const Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) fsync(folder.number());
}

}  // namespace

FileReplacement::FileReplacement(std::string file) : m_file(std::move(file)) {}

FileReplacement::~FileReplacement() {
    if (!m_unfinished.empty()) unlink(m_unfinished.c_str());
}

Result<> FileReplacement::finish(std::string_view content, mode_t mode) {
    if (auto opened = open(); !opened) return opened;
    if (auto written = write(content, mode); !written) return written;
    if (std::rename(m_unfinished.c_str(), m_file.c_str()) != 0) return systemsError();
    m_unfinished.clear();
    syncFolder(folderOf(m_file));
    return {};
}

Result<> FileReplacement::open() {
    std::string name = folderOf(m_file) + "/" + std::string(beginning) + "XXXXXX";
    m_descriptor.reset(mkostemp(name.data(), O_CLOEXEC));
    if (!m_descriptor) return systemsError();
    m_unfinished = std::move(name);
    // Before a sweep can know it. Where files cannot be locked none is swept either.
    flock(m_descriptor.number(), LOCK_EX | LOCK_NB);
    nameAfterItsNumber();
    return {};
}

/// Where another file has that name, or the file system cannot keep one from being replaced, the file stays
/// under the name that it has.
void FileReplacement::nameAfterItsNumber() {
    struct stat status {};
    if (fstat(m_descriptor.number(), &status) != 0) return;
    const std::string name = folderOf(m_file) + "/" + nameOf(status);
    if (renameat2(AT_FDCWD, m_unfinished.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0)
        m_unfinished = name;
}

Result<> FileReplacement::write(std::string_view content, mode_t mode) {
    if (const int error = writeAll(m_descriptor.number(), content); error != 0)
        return Error{std::strerror(error), ""};
    if (fchmod(m_descriptor.number(), mode) != 0) return systemsError();
    if (fsync(m_descriptor.number()) != 0) return systemsError();
    return {};
}

void FileReplacement::sweep(const std::string& folder) {
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? "." : folder, error);
    while (!error && entry != fs::directory_iterator()) {
        if (entry->path().filename().string().starts_with(beginning)) removeIfLeftOver(entry->path());
        entry.increment(error);
    }
}
