// SPDX-License-Identifier: MIT
#include "app/program/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

InstanceLock::InstanceLock(const std::string& folder, const std::string& display) {
    if (folder.empty()) return;
    const std::string ownFolder = folder + "/keyrill";
    mkdir(ownFolder.c_str(), S_IRWXU);
    std::string name = "running-" + display;
    std::replace(name.begin(), name.end(), '/', '_');
    m_file.reset(
        open((ownFolder + "/" + name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    // A folder that cannot be used is no reason not to run.
    if (!m_file) return;
    m_isOurs = flock(m_file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}
