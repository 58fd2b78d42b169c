// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "platform/desktops/HotKeyBinder.h"
#include "platform/desktops/SwayConnection.h"
#include "platform/desktops/SwayUsersBindings.h"

/// Combinations that sway takes from all programs and tells us of, by its IPC.
///
/// They follow the key, whatever the layout is. What the user's configuration binds is never taken. Locks do
/// not matter to sway. All are given back at the end; a process that is killed leaves them until sway reads
/// its configuration again.
class SwayBindings final : public HotKeyBinder {
  public:
    using Types = SwayUsersBindings::Types;

    /// Fails where the compositor is not sway.
    static Result<std::unique_ptr<SwayBindings>> open(Types types);
    ~SwayBindings() override;
    SwayBindings(const SwayBindings&) = delete;
    SwayBindings& operator=(const SwayBindings&) = delete;

    // HotKeyBinder
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    void release(const KeyGrab& grab) override;
    bool losesReleases() const override { return true; }

    int fileDescriptor() const override { return m_events.fileDescriptor(); }
    /// Sway forgets all of them when it reads its configuration again.
    std::optional<Event> nextEvent() override;

  private:
    using Place = std::pair<std::uint8_t, std::uint16_t>;

    SwayBindings(SwayConnection commands, SwayConnection events, Types types);

    Result<void> bind(const Place& place);
    void unbind(const Place& place);
    std::optional<Event> eventOf(const std::string& command) const;

    SwayConnection m_commands;
    SwayConnection m_events;
    SwayUsersBindings m_users;
    std::set<Place> m_bound;
};
