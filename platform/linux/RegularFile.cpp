// SPDX-License-Identifier: MIT
#include "platform/linux/RegularFile.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/Sentence.h"

namespace {

/// Reading there can take something away (kmsg), wait for ever (trace_pipe) or show a process's memory.
constexpr auto madeUp = std::to_array<unsigned long>(
    {PROC_SUPER_MAGIC, SYSFS_MAGIC, DEBUGFS_MAGIC, TRACEFS_MAGIC, SECURITYFS_MAGIC, SELINUX_MAGIC,
     SMACK_MAGIC, CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC, PSTOREFS_MAGIC, EFIVARFS_MAGIC, BPF_FS_MAGIC,
     BINFMTFS_MAGIC, NSFS_MAGIC});

bool isMadeUp(const struct statfs& system) {
    return std::find(madeUp.begin(), madeUp.end(), static_cast<unsigned long>(system.f_type)) != madeUp.end();
}

std::string obstacle(const struct stat& status, const struct statfs& system) {
    if (S_ISDIR(status.st_mode)) return sentence("Files", "It is a folder");
    if (S_ISREG(status.st_mode) && !isMadeUp(system)) return {};
    return sentence("Files", "It is not a regular file");
}

Error refusal(const std::string& obstacle) { return {obstacle, sentence("Files", "Choose a file.")}; }

Error systemError() { return {std::strerror(errno), ""}; }

}  // namespace

std::string obstacleAt(const std::string& path) {
    struct stat status {};
    struct statfs system {};
    if (stat(path.c_str(), &status) != 0 || statfs(path.c_str(), &system) != 0) return {};
    return obstacle(status, system);
}

Result<Descriptor> openRegularFile(const std::string& path) {
    // Looked at before it is opened, because some devices act on that, and after it, because it may be
    // another by then. A pipe without a writer would hold the program up but for O_NONBLOCK.
    const std::string before = obstacleAt(path);
    if (!before.empty()) return refusal(before);
    Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) return systemError();
    struct stat status {};
    struct statfs system {};
    if (fstat(file.number(), &status) != 0 || fstatfs(file.number(), &system) != 0) return systemError();
    const std::string now = obstacle(status, system);
    if (!now.empty()) return refusal(now);
    return file;
}
