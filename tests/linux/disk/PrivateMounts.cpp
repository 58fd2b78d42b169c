// SPDX-License-Identifier: MIT
#include "linux/disk/PrivateMounts.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace {

void require(bool done, const std::string& what) {
    if (!done) throw std::runtime_error(what + ": " + std::strerror(errno));
}

void writeTo(const std::string& file, const std::string& text) {
    std::ofstream stream(file);
    require(static_cast<bool>(stream << text << std::flush), "cannot write " + file);
}

}  // namespace

void enterPrivateMounts() {
    const auto user = std::to_string(getuid());
    const auto group = std::to_string(getgid());
    if (unshare(CLONE_NEWNS) != 0) {
        require(unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0, "no namespace for mounts can be made");
        writeTo("/proc/self/setgroups", "deny");
        writeTo("/proc/self/uid_map", "0 " + user + " 1");
        writeTo("/proc/self/gid_map", "0 " + group + " 1");
    }
    const bool isPrivate = mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    // In a changed root "/" is no mount point; what is mounted then ends with its SmallDisk at the latest.
    require(isPrivate || errno == EINVAL, "mounts cannot be made private");
}

std::size_t pageSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

SmallDisk::SmallDisk() {
    const std::string size = "size=" + std::to_string(16 * pageSize());
    require(mount("keyrill-test", path().c_str(), "tmpfs", 0, size.c_str()) == 0, "no disk can be mounted");
}

SmallDisk::~SmallDisk() { umount2(path().c_str(), MNT_DETACH); }

std::vector<std::string> SmallDisk::names(const std::string& folder) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(file(folder)))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

void SmallDisk::fillUntil(unsigned long freePages) const {
    struct statvfs status {};
    require(statvfs(path().c_str(), &status) == 0, "the disk cannot be asked");
    const auto filling = static_cast<std::size_t>(status.f_bfree - freePages) * pageSize();
    writeTo(file("filler"), std::string(filling, '.'));
    require(statvfs(path().c_str(), &status) == 0 && status.f_bfree == freePages,
            "the disk cannot be filled");
}

void SmallDisk::makeReadOnly() const {
    require(mount(nullptr, path().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0,
            "the disk cannot be made read-only");
}
