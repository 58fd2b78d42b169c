// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Wiping.h"
#include "platform/monitor/MonitorEvents.h"
#include "platform/x11/keymap/ServerKeymap.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// The connection that watches: the keys of all keyboards (XInput 2.2 raw events, which no grab of another
/// program hides) and the state and the map of the core keyboard (XKB).
///
/// The server sends both on this one connection in the order in which it works them off.
class RawKeySource {
  public:
    /// Starts watching. Fails where the server cannot be reached or lacks XInput 2.2 or XKB.
    static Result<std::unique_ptr<RawKeySource>> open(const std::string& display);

    const XConnection& connection() const { return m_connection; }
    /// The events read and not yet taken, oldest first.
    WipedQueue<MonitorEvent>& events() { return m_events; }

    /// Takes over what has come, without waiting; true if that is anything.
    bool read();
    /// Waits until all that the server has done so far is in events().
    void catchUp();
    /// From now on the events tell, in their place among the keys, when that window takes the keyboard to
    /// itself and when it lets go of it; XCB_WINDOW_NONE ends it.
    void followHoldOf(xcb_window_t window);

    /// Keymap and state of now.
    Result<std::unique_ptr<Keymap>> keymap() const { return keymapOfServer(m_connection); }
    XkbComponents components() const { return stateOfServer(m_connection).value_or(XkbComponents{}); }
    /// The keys that are down on the core keyboard, ascending.
    std::vector<std::uint8_t> keysDown() const;

  private:
    explicit RawKeySource(XConnection connection) : m_connection(std::move(connection)) {}

    Result<void> setUp();
    void selectInputEvents() const;
    void selectKeyboardEvents() const;
    void selectHoldEvents(std::uint32_t mask) const;
    void decode(const Event& event);
    void decodeKey(const Event& event, bool press);
    void decodeFocus(const Event& event, bool in);
    void decodeHierarchy(const Event& event);
    void decodeState(const Event& event);
    void noteRepeatDelay();
    bool isSynthetic(std::uint16_t source);

    XConnection m_connection;
    std::uint8_t m_inputOpcode = 0;
    std::uint8_t m_keyboardEvent = 0;
    xcb_atom_t m_xtestMark = XCB_ATOM_NONE;
    xcb_window_t m_followed = XCB_WINDOW_NONE;
    std::map<std::uint16_t, bool> m_synthetic;
    WipedQueue<MonitorEvent> m_events;
};

}  // namespace x11
