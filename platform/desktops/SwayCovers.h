// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/EventSource.h"
#include "platform/Windows.h"
#include "platform/desktops/SwayConnection.h"
#include "platform/desktops/SwayTree.h"
#include "platform/run/Wakeups.h"

/// What filled the screen in front of windows of ours and had to make room: it fills it again once the window
/// has gone, unless its user has gone on to something else there meanwhile.
///
/// Why by sway's events: windows go in many ways, and only sway knows when one is off the screen.
/// They are heard only as long as something has made room.
class SwayCovers final : public EventSource {
  public:
    /// `commands` outlives this.
    explicit SwayCovers(SwayConnection& commands) : m_commands(commands) {}
    /// Our windows go with the process.
    ~SwayCovers() override;
    SwayCovers(const SwayCovers&) = delete;
    SwayCovers& operator=(const SwayCovers&) = delete;

    /// Hears what happens from now on; before something makes room.
    void listen();
    /// It has made room, or will this moment, for the window. `cover` as it was before.
    void noteLifted(const Json& cover, const OwnWindow& window);

    // EventSource
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    void dispatch() override;

  private:
    struct Lifted {
        std::int64_t number = 0;
        SwayFill fill = SwayFill::nothing;
        OwnWindow window;
    };
    enum class Answer { notYet, yes, no };

    void follow(const Json& event);
    void putBack();
    void putBack(const Lifted& lifted);
    /// Whether it is to fill the screen again. Where another window of ours has come after the one, it waits
    /// for that.
    static Answer isDue(const Json& tree, Lifted& lifted);

    SwayConnection& m_commands;
    Wakeups m_wakeups;
    /// While something is lifted.
    std::optional<SwayConnection> m_events;
    std::vector<Lifted> m_lifted;
};
