// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktops/SwayConfiguration.h"
#include "platform/desktops/SwayConnection.h"
#include "platform/monitor/KeyGrab.h"

/// The combinations that the configuration of sway binds for its user, as they were when it was read.
class SwayUsersBindings {
  public:
    /// Whether a key (XKB) types the symbol of that name.
    using Types = std::function<bool(std::uint8_t keycode, const std::string& symbol)>;

    explicit SwayUsersBindings(Types types) : m_types(std::move(types)) {}

    /// False where sway does not answer: what was known is left.
    bool read(SwayConnection& sway);
    /// Why the combination is not to be taken, as the end of a sentence; empty where it is not bound.
    std::optional<std::string> obstacleTo(const KeyGrab& grab) const;

  private:
    Types m_types;
    std::vector<SwayConfiguration::Binding> m_bindings;
};
