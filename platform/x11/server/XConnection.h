// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <memory>
#include <span>
#include <string>

#include "platform/Result.h"
#include "platform/x11/server/Event.h"
#include "platform/x11/server/XReply.h"

namespace x11 {

/// An own connection to the X server. Each duty has one, since what a connection selects and grabs changes
/// what it is sent: a connection that grabs loses its raw releases, one that injects must get no events.
class XConnection {
  public:
    /// Connects to `display`, or to $DISPLAY if it is empty. The error names the display.
    static Result<XConnection> open(const std::string& display = {});

    xcb_connection_t* get() const { return m_connection.get(); }
    /// Implicit, because every function of xcb takes it.
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator xcb_connection_t*() const { return m_connection.get(); }
    xcb_window_t root() const { return m_root; }
    int fileDescriptor() const { return xcb_get_file_descriptor(m_connection.get()); }
    /// True once the server is gone or has thrown us out; nothing can be asked any more.
    bool isBroken() const { return xcb_connection_has_error(m_connection.get()) != 0; }

    /// The next event that has come, without waiting; none if there is none.
    Event nextEvent() const { return Event(xcb_poll_for_event(m_connection.get())); }
    /// Flushes and waits for the next event; none once the server is gone.
    Event awaitEvent() const;

    /// Flushes and waits until the server has worked off all requests; all events that these and earlier
    /// device events caused are in the queue afterwards.
    void roundTrip() const;

    /// The atom of a name, made if missing.
    xcb_atom_t atom(const std::string& name) const { return atoms(std::array{name.c_str()}).front(); }
    /// Those of several names, in one round trip.
    template <std::size_t count>
    std::array<xcb_atom_t, count> atoms(const std::array<const char*, count>& names) const {
        std::array<xcb_atom_t, count> found{};
        findAtoms(names, found);
        return found;
    }
    /// The window that stands for a selection's owner; XCB_WINDOW_NONE if it has none.
    xcb_window_t ownerOf(xcb_atom_t selection) const;

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Handle = std::unique_ptr<xcb_connection_t, Disconnect>;

    XConnection(Handle connection, xcb_window_t root);

    void findAtoms(std::span<const char* const> names, std::span<xcb_atom_t> found) const;

    Handle m_connection;
    xcb_window_t m_root;
};

}  // namespace x11
