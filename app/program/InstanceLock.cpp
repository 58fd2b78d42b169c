// SPDX-License-Identifier: MIT
#include "app/program/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

InstanceLock::InstanceLock(const std::string& folder) {
    if (folder.empty()) return;
    const std::string ownFolder = folder + "/keyrill";
    mkdir(ownFolder.c_str(), S_IRWXU);
    m_descriptor =
        open((ownFolder + "/running").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    // A folder that cannot be used is no reason not to run.
    if (m_descriptor < 0) return;
    m_isOurs = flock(m_descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
    if (m_descriptor >= 0) close(m_descriptor);
}
