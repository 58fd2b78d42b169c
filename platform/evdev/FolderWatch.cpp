// SPDX-License-Identifier: MIT
#include "platform/evdev/FolderWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace evdev {

FolderWatch::FolderWatch(const std::string& folder) : m_watch(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    // Rights are set after the file has come, and anew when another user's session becomes the active one.
    const std::uint32_t changes = IN_CREATE | IN_MOVED_TO | IN_ATTRIB | IN_ONLYDIR;
    if (inotify_add_watch(m_watch.number(), folder.c_str(), changes) < 0) m_watch.reset();
}

bool FolderWatch::take() const {
    constexpr std::size_t someEvents = 4096;
    alignas(inotify_event) std::array<char, someEvents> events{};
    bool any = false;
    while (read(m_watch.number(), events.data(), events.size()) > 0) any = true;
    return any;
}

}  // namespace evdev
