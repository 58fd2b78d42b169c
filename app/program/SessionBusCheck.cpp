// SPDX-License-Identifier: MIT
#include "app/program/SessionBusCheck.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "platform/Descriptor.h"
#include "platform/Parts.h"

namespace {

constexpr std::chrono::milliseconds patience{500};

/// The value of a key in the first address of a list, "unix:path=/run/user/0/bus,guid=...;...".
std::string valueOf(std::string_view address, std::string_view key) {
    address = address.substr(0, address.find(';'));
    if (!address.starts_with("unix:")) return {};
    address.remove_prefix(5);
    while (!address.empty()) {
        const std::string_view pair = takePart(address, ',');
        if (pair.starts_with(key) && pair.substr(key.size()).starts_with('=')) {
            return std::string(pair.substr(key.size() + 1));
        }
    }
    return {};
}

/// The socket's name in the form of the system: an abstract one begins with a zero byte.
std::string socketName(const std::string& address) {
    std::string path = valueOf(address, "path");
    if (!path.empty()) return path;
    const std::string abstractName = valueOf(address, "abstract");
    return abstractName.empty() ? std::string() : '\0' + abstractName;
}

bool connectTo(int descriptor, const std::string& name) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= sizeof(address.sun_path)) return false;
    std::memcpy(&address.sun_path[0], name.data(), name.size());
    const bool isAbstract = name.front() == '\0';
    const std::size_t length = offsetof(sockaddr_un, sun_path) + name.size() + (isAbstract ? 0 : 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): how the system wants it
    return connect(descriptor, reinterpret_cast<const sockaddr*>(&address), static_cast<socklen_t>(length)) ==
           0;
}

std::string sessionBusAddress() {
    const char* address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    std::string known = address != nullptr ? address : "";
    if (known.empty() && folder != nullptr) known = std::string("unix:path=") + folder + "/bus";
    return known;
}

}  // namespace

bool answersInTime(const std::string& address, std::chrono::milliseconds time) {
    // Escaped names are rare; those are not looked at.
    const std::string name = socketName(address);
    if (name.empty() || name.find('%') != std::string::npos) return true;
    const Descriptor bus(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!bus || !connectTo(bus.number(), name)) return true;
    // The beginning of every conversation with a bus; it lists the ways to authenticate.
    const std::string greeting("\0AUTH\r\n", 7);
    if (send(bus.number(), greeting.data(), greeting.size(), MSG_NOSIGNAL) < 0) return true;
    pollfd answer{.fd = bus.number(), .events = POLLIN, .revents = 0};
    return poll(&answer, 1, static_cast<int>(time.count())) != 0;
}

bool sessionBusAnswers() { return answersInTime(sessionBusAddress(), patience); }

void avoidHangingSessionBus() {
    if (!sessionBusAnswers()) setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
}
