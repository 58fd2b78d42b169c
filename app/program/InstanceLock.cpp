// SPDX-License-Identifier: MIT
#include "app/program/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

/// Somebody who looks whether it is locked has it for a moment.
constexpr int tries = 20;
constexpr useconds_t betweenTries = 1000;
constexpr std::size_t longestNote = 256;

std::string fileFor(const std::string& folder, const std::string& display) {
    std::string name = "running-" + display;
    std::replace(name.begin(), name.end(), '/', '_');
    return folder + "/keyrill/" + name;
}

bool isLockedByOthers(int file, int operation) {
    return flock(file, operation | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

InstanceLock::InstanceLock(const std::string& folder, const std::string& display) {
    if (folder.empty()) return;
    mkdir((folder + "/keyrill").c_str(), S_IRWXU);
    m_file.reset(
        open(fileFor(folder, display).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    // A folder that cannot be used is no reason not to run.
    if (!m_file) return;
    for (int i = 0; i < tries; ++i) {
        m_isOurs = !isLockedByOthers(m_file.number(), LOCK_EX);
        if (m_isOurs) return;
        usleep(betweenTries);
    }
}

void InstanceLock::note(const std::string& text) const {
    if (!m_file || !m_isOurs || ftruncate(m_file.number(), 0) != 0) return;
    // Nobody can be told of a note that could not be written; the next one may be.
    static_cast<void>(pwrite(m_file.number(), text.data(), text.size(), 0) < 0);
}

std::optional<std::string> InstanceLock::noteOfOther(const std::string& folder, const std::string& display) {
    if (folder.empty()) return std::nullopt;
    const Descriptor file(open(fileFor(folder, display).c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!file || !isLockedByOthers(file.number(), LOCK_SH)) return std::nullopt;
    std::string text(longestNote, '\0');
    const ssize_t size = pread(file.number(), text.data(), text.size(), 0);
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return text;
}
