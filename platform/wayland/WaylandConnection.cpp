// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandConnection.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>

#include "platform/Sentence.h"

namespace wayland {

namespace {

Error lost() {
    return {sentence("Session", "The connection to the compositor was lost."),
            sentence("Session", "Log in again.")};
}

}  // namespace

Result<std::unique_ptr<WaylandConnection>> WaylandConnection::open() {
    wl_display* const display = wl_display_connect(nullptr);
    if (display == nullptr) {
        return Error{sentence("Session", "No Wayland compositor answers at $WAYLAND_DISPLAY."),
                     sentence("Session", "Start the program in a Wayland session.")};
    }
    std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display));
    const auto listed = connection->roundTrip();
    if (!listed) return listed.error();
    constexpr std::uint32_t seatVersion = 5;
    connection->m_seat = static_cast<wl_seat*>(connection->bind(wl_seat_interface, seatVersion));
    return connection;
}

WaylandConnection::WaylandConnection(wl_display* display) : m_display(display) {
    static constexpr wl_registry_listener listener{.global = added, .global_remove = removed};
    m_registry = wl_display_get_registry(m_display);
    wl_registry_add_listener(m_registry, &listener, this);
}

WaylandConnection::~WaylandConnection() {
    if (m_seat != nullptr) wl_seat_release(m_seat);
    wl_registry_destroy(m_registry);
    wl_display_flush(m_display);
    wl_display_disconnect(m_display);
}

void WaylandConnection::added(void* self, wl_registry* /*registry*/, std::uint32_t name,
                              const char* interface, std::uint32_t version) {
    static_cast<WaylandConnection*>(self)->m_globals.push_back({name, interface, version});
}

void WaylandConnection::removed(void* self, wl_registry* /*registry*/, std::uint32_t name) {
    std::erase_if(static_cast<WaylandConnection*>(self)->m_globals,
                  [name](const Global& global) { return global.name == name; });
}

bool WaylandConnection::offers(const wl_interface& interface) const {
    return std::any_of(m_globals.begin(), m_globals.end(),
                       [&](const Global& global) { return global.interface == interface.name; });
}

void* WaylandConnection::bind(const Global& global, const wl_interface& interface,
                              std::uint32_t version) const {
    return wl_registry_bind(m_registry, global.name, &interface, std::min(version, global.version));
}

void* WaylandConnection::bind(const wl_interface& interface, std::uint32_t version) const {
    const auto place = std::find_if(m_globals.begin(), m_globals.end(),
                                    [&](const Global& global) { return global.interface == interface.name; });
    return place == m_globals.end() ? nullptr : bind(*place, interface, version);
}

std::vector<void*> WaylandConnection::bindAll(const wl_interface& interface, std::uint32_t version) const {
    std::vector<void*> bound;
    for (const Global& global : m_globals) {
        if (global.interface == interface.name) bound.push_back(bind(global, interface, version));
    }
    return bound;
}

void WaylandConnection::flush() {
    while (wl_display_flush(m_display) < 0 && errno == EAGAIN) {
        pollfd entry{.fd = fileDescriptor(), .events = POLLOUT, .revents = 0};
        poll(&entry, 1, -1);
    }
}

Result<void> WaylandConnection::roundTrip() {
    flush();
    if (wl_display_roundtrip(m_display) < 0) return lost();
    return {};
}

/// A compositor that has died is seen by whoever looks, also where nothing is read.
bool WaylandConnection::isBroken() const {
    pollfd entry{.fd = fileDescriptor(), .events = 0, .revents = 0};
    poll(&entry, 1, 0);
    return wl_display_get_error(m_display) != 0 || (entry.revents & (POLLHUP | POLLERR)) != 0;
}

void WaylandConnection::dispatch() {
    while (wl_display_prepare_read(m_display) != 0) {
        if (wl_display_dispatch_pending(m_display) < 0) return;
    }
    wl_display_flush(m_display);
    pollfd entry{.fd = fileDescriptor(), .events = POLLIN, .revents = 0};
    if (poll(&entry, 1, 0) > 0) {
        wl_display_read_events(m_display);
    } else {
        wl_display_cancel_read(m_display);
    }
    wl_display_dispatch_pending(m_display);
}

}  // namespace wayland
