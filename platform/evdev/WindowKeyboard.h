// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "platform/Clock.h"
#include "platform/WindowKeys.h"
#include "platform/XkbCodes.h"
#include "platform/evdev/KeyStream.h"

namespace evdev {

/// A window of ours as the only keyboard of a recording. What the running script presses and the window gets
/// is told from the user's keys by its count: the window gets it when the run is over, if at all.
class WindowKeyboard final : public WindowKeys {
  public:
    /// All outlive this. `begins` is told that the recording is to take no other keys; `changed`, that the
    /// stream has something new, which is delivered at once: the window may end the recording next.
    WindowKeyboard(KeyStream& stream, const Clock& clock, std::function<void()> begins,
                   std::function<void()> changed)
        : m_stream(stream), m_clock(clock), m_begins(std::move(begins)), m_changed(std::move(changed)) {}

    // WindowKeys
    void begin() override { m_begins(); }
    void key(const WindowKey& key) override;
    void leave() override;

    /// Whether the recording takes its keys from here.
    bool isUsed() const { return m_isUsed; }
    void setUsed(bool used);
    /// A stroke of the running script, which the window may get.
    void ownKey(std::uint8_t keycode, bool press);

  private:
    using Counts = std::array<unsigned, xkbcode::last + 1>;

    bool isOwn(const WindowKey& key);

    KeyStream& m_stream;
    const Clock& m_clock;
    std::function<void()> m_begins;
    std::function<void()> m_changed;
    bool m_isUsed = false;
    /// How often the script has pressed, and released, each key that the window has not told of.
    Counts m_ownPresses{};
    Counts m_ownReleases{};
    Clock::Time m_lastOwn{};
};

}  // namespace evdev
