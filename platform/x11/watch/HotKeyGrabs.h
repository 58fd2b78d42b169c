// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/monitor/MonitorEvents.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// A combination as the server takes it.
struct KeyGrab {
    std::uint8_t keycode = 0;
    std::uint16_t modifiers = 0;
    /// All modifiers that a lock may set; they do not matter for the combination.
    std::uint16_t locks = 0;

    /// The combination with each set of locks: grabs compare all modifiers.
    std::vector<std::uint16_t> variants() const;
    bool matches(std::uint8_t pressedKeycode, std::uint16_t pressedModifiers) const;
    bool collidesWith(const KeyGrab& other) const;

    friend bool operator==(const KeyGrab&, const KeyGrab&) = default;
};

/// A key that came because of a grab.
struct GrabbedPress {
    std::uint8_t keycode = 0;
    std::uint16_t modifiers = 0;
    ServerTime time = 0;
    /// Counts up from 1.
    std::uint64_t number = 0;
};

/// The connection that holds the hot keys. Others than the combinations may come while one is held.
class HotKeyGrabs {
  public:
    static Result<std::unique_ptr<HotKeyGrabs>> open(const std::string& display);

    const XConnection& connection() const { return m_connection; }
    std::deque<GrabbedPress>& presses() { return m_presses; }

    /// Takes the combination from all other programs; all variants or none. The error says why not, as the
    /// end of a sentence: "another program holds it".
    std::optional<std::string> grab(const KeyGrab& grab);
    void release(const KeyGrab& grab);
    /// Ends the hold on the keyboard that lasts while a combination is held down.
    void endActiveGrab();

    /// Takes over what has come, without waiting; true if that is anything.
    bool read();
    void catchUp();

    /// Whether the server has such a key code.
    bool hasKeycode(unsigned keycode) const;

  private:
    explicit HotKeyGrabs(XConnection connection) : m_connection(std::move(connection)) {}

    XConnection m_connection;
    std::deque<GrabbedPress> m_presses;
    std::uint64_t m_lastNumber = 0;
};

}  // namespace x11
