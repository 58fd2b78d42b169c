// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventSource.h"
#include "platform/Result.h"

namespace wayland {

/// A connection to a compositor, with the objects that it offers to everybody.
///
/// Requests are queued until flush() or roundTrip(). What comes is handled by the listeners of the objects,
/// in dispatch() and roundTrip() alone.
class WaylandConnection final : public EventSource {
  public:
    /// As $WAYLAND_DISPLAY names it. Fails with a hint where no compositor answers.
    static Result<std::unique_ptr<WaylandConnection>> open();
    ~WaylandConnection() override;
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;

    int fileDescriptor() const override { return wl_display_get_fd(m_display); }
    void dispatch() override;

    /// Sends what is queued; waits while the compositor takes nothing.
    void flush();
    /// Waits until the compositor has worked off all requests, and handles what has come. Fails when the
    /// connection is lost.
    Result<void> roundTrip();
    /// Whether the connection is lost.
    bool isBroken() const;

    bool offers(const wl_interface& interface) const;
    /// An object of the first global of that interface, the caller's to destroy; null where there is none.
    /// `version` is the newest that the caller speaks.
    void* bind(const wl_interface& interface, std::uint32_t version) const;
    /// The same of each global of that interface, in the order in which they came.
    std::vector<void*> bindAll(const wl_interface& interface, std::uint32_t version) const;

    /// The first seat; null where there is none.
    wl_seat* seat() const { return m_seat; }

  private:
    explicit WaylandConnection(wl_display* display);

    struct Global {
        std::uint32_t name = 0;
        std::string interface;
        std::uint32_t version = 0;
    };

    static void added(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t version);
    static void removed(void* self, wl_registry* registry, std::uint32_t name);
    void* bind(const Global& global, const wl_interface& interface, std::uint32_t version) const;

    wl_display* m_display;
    wl_registry* m_registry = nullptr;
    wl_seat* m_seat = nullptr;
    std::vector<Global> m_globals;
};

}  // namespace wayland
