// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/EventSource.h"
#include "platform/desktops/SwayBindings.h"

namespace evdev {
class EvdevEventMonitor;
}

namespace wayland {

class SeatKeymap;

/// Combinations of sway's, for a seat; fails where the compositor is not sway. `seat` outlives them.
Result<std::unique_ptr<SwayBindings>> openSwayBindings(const SeatKeymap& seat);

/// Passes on to the monitor what sway tells of combinations, of a configuration that it has read again, and
/// of layouts.
///
/// Sway tells of a release as soon as any key of the combination is up.
class SwaySignals final : public EventSource {
  public:
    /// All outlive this; so does what `layout` refers to, which tells the layout in force, and nothing while
    /// that is not the user's.
    SwaySignals(SwayBindings& bindings, evdev::EvdevEventMonitor& monitor,
                std::function<std::optional<std::uint32_t>()> layout);

    int fileDescriptor() const override { return m_bindings.fileDescriptor(); }
    void dispatch() override;

  private:
    void pass(const SwayBindings::Event& event);

    SwayBindings& m_bindings;
    evdev::EvdevEventMonitor& m_monitor;
    std::function<std::optional<std::uint32_t>()> m_layout;
};

}  // namespace wayland
