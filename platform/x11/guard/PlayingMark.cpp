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

bool lock(const Descriptor& file) { return flock(file.number(), LOCK_EX | LOCK_NB) == 0; }

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
    if (m_file.empty() || m_open) return;
    mkdir(std::filesystem::path(m_file).parent_path().c_str(), 0700);
    for (int tries = 0; tries < maxTries && !tryToSet(); ++tries) usleep(betweenTries);
}

/// False if it is worth trying again.
bool PlayingMark::tryToSet() {
    m_open.reset(open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!m_open) return true;
    // The file may have been removed by its last owner between the two calls.
    struct stat state {};
    if (lock(m_open) && fstat(m_open.number(), &state) == 0 && state.st_nlink > 0) return true;
    m_open.reset();
    return false;
}

void PlayingMark::clear() {
    if (!m_open) return;
    unlink(m_file.c_str());
    m_open.reset();
}

bool PlayingMark::takeStale() {
    if (m_file.empty()) return false;
    const Descriptor left(open(m_file.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
    if (!left || !lock(left)) return false;
    unlink(m_file.c_str());
    return true;
}

}  // namespace x11
