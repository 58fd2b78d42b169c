// SPDX-License-Identifier: MIT
#include "platform/evdev/DirectOpener.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "platform/Sentence.h"
#include "platform/evdev/devices/KeyboardList.h"

namespace evdev {

bool DirectOpener::mayOpen() const {
    const std::vector<std::string> names = listKeyboards(m_folders);
    return !names.empty() && std::all_of(names.begin(), names.end(), [this](const std::string& name) {
        return access((m_folders.devices + "/" + name).c_str(), R_OK) == 0;
    });
}

void DirectOpener::open(const std::set<std::string>& held, Question /*question*/, Opened opened) {
    opened(openAllBut(held));
}

Result<std::vector<OpenedDevice>> DirectOpener::openAllBut(const std::set<std::string>& held) const {
    std::vector<OpenedDevice> devices;
    for (const std::string& name : listKeyboards(m_folders)) {
        if (held.contains(name)) continue;
        const std::string file = m_folders.devices + "/" + name;
        Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
        const int cause = errno;
        if (descriptor) {
            devices.push_back({std::move(descriptor), name});
        } else if (cause != ENOENT && cause != ENODEV) {
            // Those were unplugged meanwhile.
            return Error{sentence("Keyboards", "The keyboard cannot be read: %1: %2.")
                             .arg(file)
                             .arg(std::strerror(cause)),
                         sentence("Keyboards", "Let the keyboard be read while a macro is recorded.")};
        }
    }
    return devices;
}

}  // namespace evdev
