// SPDX-License-Identifier: MIT
#include "access/KernelDevices.h"

#include <fcntl.h>
#include <linux/input.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "access/Strokes.h"
#include "platform/evdev/devices/KernelCalls.h"
#include "platform/evdev/devices/KeyboardList.h"
#include "platform/evdev/devices/OwnDevice.h"

namespace keyaccess {

namespace {

/// The kernel's number for all input devices (Documentation/admin-guide/devices.txt).
constexpr unsigned inputMajor = 13;

bool isInputDevice(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISCHR(status.st_mode) && major(status.st_rdev) == inputMajor;
}

/// By the device itself: the list may be of another that had the name before.
bool hasKeysOfAKeyboard(int descriptor) {
    std::array<std::uint8_t, KEY_CNT / 8> bytes{};
    if (ioctl(descriptor, EVIOCGBIT(EV_KEY, sizeof bytes), bytes.data()) < 0) return false;
    return (bytes[KEY_ENTER / 8] >> (KEY_ENTER % 8) & 1) != 0 ||
           (bytes[KEY_KPENTER / 8] >> (KEY_KPENTER % 8) & 1) != 0;
}

bool writeEvent(int device, std::uint16_t type, std::uint16_t code, std::int32_t value) {
    input_event event{};
    event.type = type;
    event.code = code;
    event.value = value;
    return write(device, &event, sizeof event) == sizeof event;
}

bool setUp(int device) {
    if (ioctl(device, UI_SET_EVBIT, EV_KEY) < 0) return false;
    for (unsigned code = lowestKey; code <= highestKey; ++code) {
        if (isKeyOffered(static_cast<std::uint16_t>(code)) && ioctl(device, UI_SET_KEYBIT, code) < 0)
            return false;
    }
    if (ioctl(device, UI_SET_PHYS, evdev::own_device::place.data()) < 0) return false;
    uinput_setup setup{};
    setup.id.bustype = BUS_VIRTUAL;
    std::copy(evdev::own_device::name.begin(), evdev::own_device::name.end(), std::begin(setup.name));
    return ioctl(device, UI_DEV_SETUP, &setup) == 0 && ioctl(device, UI_DEV_CREATE) == 0;
}

}  // namespace

std::vector<OpenKeyboard> KernelDevices::openKeyboards(const std::set<std::string>& except) {
    std::vector<OpenKeyboard> keyboards;
    for (const std::string& name : evdev::listKeyboards(m_folders)) {
        if (except.contains(name)) continue;
        const std::string file = m_folders.devices + "/" + name;
        Descriptor descriptor(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY));
        if (!descriptor || !isInputDevice(descriptor.number()) || !hasKeysOfAKeyboard(descriptor.number()))
            continue;
        keyboards.push_back({std::move(descriptor), name});
    }
    return keyboards;
}

void KernelDevices::revoke(int keyboard) { evdev::KernelCalls().revoke(keyboard); }

bool KernelDevices::isPresent(int keyboard) const {
    int version = 0;
    return ioctl(keyboard, EVIOCGVERSION, &version) == 0;
}

Descriptor KernelDevices::makeKeyboard() {
    Descriptor device(open("/dev/uinput", O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
    if (device && !setUp(device.number())) device.reset();
    return device;
}

bool KernelDevices::type(int keyboard, std::uint16_t code, bool press) {
    return writeEvent(keyboard, EV_KEY, code, press ? 1 : 0) && writeEvent(keyboard, EV_SYN, SYN_REPORT, 0);
}

}  // namespace keyaccess
