// SPDX-License-Identifier: MIT
#include "platform/linux/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view beginning = ".keyrill-unfinished-";
constexpr std::string_view placeholder = "XXXXXX";

Error systemsError() { return {std::strerror(errno), ""}; }

bool isAsciiLetterOrDigit(char letter) {
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= 'a' && letter <= 'z');
}

bool isName(const std::string& name) {
    return name.size() == beginning.size() + placeholder.size() && name.starts_with(beginning) &&
           std::all_of(name.end() - static_cast<std::ptrdiff_t>(placeholder.size()), name.end(),
                       isAsciiLetterOrDigit);
}

/// A writer holds the lock of its file for as long as it lives.
bool isLeftOver(const Descriptor& file) {
    struct stat status {};
    return file && fstat(file.number(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && flock(file.number(), LOCK_EX | LOCK_NB) == 0;
}

/// Locked until it is gone, so that whoever has just begun to write it sees that it is lost.
void removeIfLeftOver(const fs::path& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (isLeftOver(file)) unlink(path.c_str());
}

/// Whether no sweep has come between the making of a file and its lock. Where files cannot be locked none is
/// swept either.
bool isKept(const Descriptor& file) {
    struct stat status {};
    if (flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
    return fstat(file.number(), &status) != 0 || status.st_nlink != 0;
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
    // Each time one is lost another program has swept the folder.
    do {
        std::string name = folderOf(m_file) + "/" + std::string(beginning) + std::string(placeholder);
        m_descriptor.reset(mkostemp(name.data(), O_CLOEXEC));
        if (!m_descriptor) return systemsError();
        m_unfinished = std::move(name);
    } while (!isKept(m_descriptor));
    return {};
}

Result<> FileReplacement::write(std::string_view content, mode_t mode) {
    while (!content.empty()) {
        const ssize_t count = ::write(m_descriptor.number(), content.data(), content.size());
        if (count < 0 && errno != EINTR) return systemsError();
        content.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    if (fchmod(m_descriptor.number(), mode) != 0) return systemsError();
    if (fsync(m_descriptor.number()) != 0) return systemsError();
    return {};
}

void FileReplacement::sweep(const std::string& folder) {
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? "." : folder, error);
    while (!error && entry != fs::directory_iterator()) {
        if (isName(entry->path().filename())) removeIfLeftOver(entry->path());
        entry.increment(error);
    }
}
