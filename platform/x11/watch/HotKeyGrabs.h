// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Wiping.h"
#include "platform/monitor/KeyGrabber.h"
#include "platform/monitor/MonitorEvents.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/watch/StopLimit.h"

namespace x11 {

/// A key that came because of a grab.
struct GrabbedPress {
    std::uint8_t keycode = 0;
    std::uint16_t modifiers = 0;
    ServerTime time = 0;
    /// Counts up from 1.
    std::uint64_t number = 0;
};

/// The connection that holds the hot keys. Others than the combinations may come while one is held.
class HotKeyGrabs final : public KeyGrabber {
  public:
    static Result<std::unique_ptr<HotKeyGrabs>> open(const std::string& display);

    const XConnection& connection() const { return m_connection; }
    WipedQueue<GrabbedPress>& presses() { return m_presses; }

    // KeyGrabber
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    /// In two round trips at most, however many they are.
    std::vector<std::optional<std::string>> grabAll(const std::vector<Wish>& wishes) override;
    void release(const KeyGrab& grab) override;

    /// Ends the hold on the keyboard that lasts while a combination is held down.
    void endActiveGrab();

    /// Ends it for all but the key itself, which the hand still holds: what is typed meanwhile reaches the
    /// applications, and the repeats of the key do not, whichever of its modifiers are up by then.
    ///
    /// Each further press of the key stops the keyboard until it is known what it is: a repeat, which
    /// endActiveGrab() drops, or a new one, because the key has been up meanwhile, which passOn() lets
    /// through. If neither is said within a second the keyboard goes on, and the press is lost.
    void yieldKeyboard(const GrabbedPress& press);
    /// The press that has come because of yieldKeyboard() reaches the application after all, and before what
    /// is pressed after it.
    void passOn();
    /// The keys of yieldKeyboard() are up, or those of this key code alone.
    void takeUp();
    void takeUp(std::uint8_t keycode);
    /// The key's presses are for the applications for a while, though it is not up; false if that changes
    /// nothing.
    bool liftShields(std::uint8_t keycode);
    void restoreShields(std::uint8_t keycode);

    /// Takes over what has come, without waiting; true if that is anything.
    bool read();
    void catchUp();

  private:
    explicit HotKeyGrabs(XConnection connection) : m_connection(std::move(connection)) {}

    using Cookies = std::vector<xcb_void_cookie_t>;
    Cookies ask(const KeyGrab& grab);
    std::optional<std::string> answerTo(const Cookies& cookies) const;
    /// Without waiting until it is done.
    void giveBack(const KeyGrab& grab);
    void shield(const KeyPlace& place);
    void ungrab(const KeyPlace& place) const;
    bool unshield(std::uint8_t keycode);

    XConnection m_connection;
    StopLimit m_limit{m_connection};
    std::set<KeyPlace> m_combinations;
    /// What is grabbed for the sake of repeats alone, and what of it is lifted.
    std::set<KeyPlace> m_shields;
    std::set<KeyPlace> m_lifted;
    WipedQueue<GrabbedPress> m_presses;
    std::uint64_t m_lastNumber = 0;
};

}  // namespace x11
