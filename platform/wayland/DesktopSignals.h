// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/EventSource.h"
#include "platform/desktops/HotKeyBinder.h"

namespace evdev {
class EvdevEventMonitor;
}

namespace wayland {

/// Passes on to the monitor what the desktop tells of combinations and of what its user decides on them, of
/// having forgotten them, and of layouts.
///
/// It tells of a release as soon as any key of the combination is up.
class DesktopSignals final : public EventSource {
  public:
    /// All outlive this; so does what `layout` refers to, which tells the layout in force, and nothing while
    /// that is not the user's.
    DesktopSignals(HotKeyBinder& bindings, evdev::EvdevEventMonitor& monitor,
                   std::function<std::optional<std::uint32_t>()> layout);

    int fileDescriptor() const override { return m_bindings.fileDescriptor(); }
    void dispatch() override;

  private:
    void pass(const HotKeyBinder::Event& event);

    HotKeyBinder& m_bindings;
    evdev::EvdevEventMonitor& m_monitor;
    std::function<std::optional<std::uint32_t>()> m_layout;
};

}  // namespace wayland
