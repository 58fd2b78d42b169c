// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/Clock.h"
#include "platform/CompositorFocus.h"
#include "platform/EventSource.h"
#include "platform/Windows.h"
#include "platform/run/Wakeups.h"

namespace wayland {

/// The windows of ours, which the toolkit shows as X11 windows where there is an X server.
class WaylandWindows final : public Windows, public EventSource {
  public:
    /// Keeps the focus away from an X11 window.
    using FocusRefuser = void (*)(WindowId window);

    /// `compositor` is null where nobody can be asked; both outlive this.
    WaylandWindows(CompositorFocus* compositor, FocusRefuser refuser, Clock& clock)
        : m_compositor(compositor), m_refuser(refuser), m_clock(clock) {}

    // Windows
    void refuseFocus(const OwnWindow& window) override;
    /// The compositor has a window only once it is painted, which the event loop does, and which lasts where
    /// much else is to be done: it is asked again and again for some seconds.
    void activate(const OwnWindow& window, std::uint32_t userTime) override;
    /// Compositors pass the focus on by themselves; nothing is given back.
    void awaitFocusElsewhere(const OwnWindow& hidden) override;

    // EventSource
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    void dispatch() override;

  private:
    void focusAwaited();

    CompositorFocus* m_compositor;
    FocusRefuser m_refuser;
    Clock& m_clock;
    Wakeups m_wakeups;
    std::optional<OwnWindow> m_awaited;
    Clock::Time m_begin;
};

}  // namespace wayland
