// SPDX-License-Identifier: MIT
#include "platform/x11/PlayingMark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace {

bool lock(int descriptor) { return flock(descriptor, LOCK_EX | LOCK_NB) == 0; }

}  // namespace

PlayingMark::PlayingMark(std::string file) : m_file(std::move(file)) {}

PlayingMark::~PlayingMark() { clear(); }

std::string PlayingMark::fileFor(const std::string& folder, const std::string& display) {
    if (folder.empty()) return {};
    std::string name = "playing-" + display;
    std::replace(name.begin(), name.end(), '/', '_');
    return folder + "/keyrill/" + name;
}

void PlayingMark::set() {
    if (m_file.empty() || m_descriptor >= 0) return;
    mkdir(std::filesystem::path(m_file).parent_path().c_str(), 0700);
    m_descriptor = open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_descriptor >= 0 && !lock(m_descriptor)) close(std::exchange(m_descriptor, -1));
}

void PlayingMark::clear() {
    if (m_descriptor < 0) return;
    unlink(m_file.c_str());
    close(std::exchange(m_descriptor, -1));
}

bool PlayingMark::takeStale() {
    if (m_file.empty()) return false;
    const int descriptor = open(m_file.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0) return false;
    const bool isStale = lock(descriptor);
    if (isStale) unlink(m_file.c_str());
    close(descriptor);
    return isStale;
}
