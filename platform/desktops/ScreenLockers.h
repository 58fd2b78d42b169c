// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

/// The screen lockers that a user has started. No desktop tells of those that he starts himself, so they are
/// known by what no other program does: they are shown by a Wayland compositor and ask for his password under
/// a name of their own (pam.d(5)).
class ScreenLockers {
  public:
    struct Places {
        std::string processes = "/proc";
        std::string passwordServices = "/etc/pam.d";
    };

    ScreenLockers() = default;
    explicit ScreenLockers(Places places) : m_places(std::move(places)) {}

    /// Whether one of that user's runs now.
    bool isAnyRunning(uid_t user) const;

  private:
    bool isLocker(const std::string& process, uid_t user) const;

    Places m_places;
};
