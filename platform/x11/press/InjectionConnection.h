// SPDX-License-Identifier: MIT
#pragma once

#include "platform/keymap/Stroke.h"
#include "platform/press/KeyOutput.h"
#include "platform/run/RunWatch.h"
#include "platform/x11/keymap/ServerKeymap.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// The connection on which keys are pressed.
///
/// Why it is one of its own and selects no events: a server that finds this client dead while it writes it an
/// event drops the requests that are still to be worked off, and a key that was pressed by those before them
/// stays down. For the same reason strokes leave whole: what belongs together is queued between two calls of
/// reserve() or flush(), and xcb never has to cut its queue.
class InjectionConnection final : public KeyOutput {
  public:
    /// Fails with a hint where the server lacks XTEST, XKB or XInput 2.2.
    static Result<InjectionConnection> open(const std::string& display, RunWatch& watch);

    /// What xcb sends in one piece, and what is safe between two round trips.
    static constexpr std::size_t capacity = 16384;
    /// What a stroke, with the way to its locks and group and back, takes of that at most.
    static std::size_t sizeOf(const Stroke& stroke);

    /// Whether that much more can be queued before the next flush.
    bool hasRoomFor(std::size_t bytes) const { return m_queued + bytes <= capacity; }

    // KeyOutput; keys are also announced to the watch.
    void press(std::uint8_t keycode) override;
    void release(std::uint8_t keycode) override;
    void lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) override;
    void lockGroup(xkb_layout_index_t group) override;
    void flush() override;
    Result<XkbComponents> synchronise() override;

    void press(const KeycodeSet& keycodes);
    void release(const KeycodeSet& keycodes);
    void clearLatches();

    xcb_connection_t* get() const { return m_connection.get(); }
    xcb_window_t root() const { return m_connection.root(); }

  private:
    InjectionConnection(XConnection connection, RunWatch& watch)
        : m_connection(std::move(connection)), m_watch(&watch) {}

    void fake(std::uint8_t keycode, bool press);

    XConnection m_connection;
    RunWatch* m_watch;
    std::size_t m_queued = 0;
};

}  // namespace x11
