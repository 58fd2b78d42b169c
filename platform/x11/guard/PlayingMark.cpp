// SPDX-License-Identifier: MIT
#include "platform/x11/guard/PlayingMark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace x11 {

namespace {

constexpr int maxTries = 100;
constexpr useconds_t betweenTries = 2000;

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
    for (int tries = 0; tries < maxTries && !tryToSet(); ++tries) usleep(betweenTries);
}

/// False if it is worth trying again.
bool PlayingMark::tryToSet() {
    m_descriptor = open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_descriptor < 0) return true;
    // The file may have been removed by its last owner between the two calls.
    struct stat state {};
    if (lock(m_descriptor) && fstat(m_descriptor, &state) == 0 && state.st_nlink > 0) return true;
    close(std::exchange(m_descriptor, -1));
    return false;
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

}  // namespace x11
