// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

/// A task bar at a compositor (wlr-foreign-toplevel-management-unstable-v1): the windows that it tells of.
class Toplevels {
  public:
    struct Window {
        std::string title;
        bool isActive = false;
    };

    /// `socket` is the compositor's; one that manages no toplevels fails the test by an exception.
    explicit Toplevels(const std::string& socket);
    ~Toplevels();
    Toplevels(const Toplevels&) = delete;
    Toplevels& operator=(const Toplevels&) = delete;

    /// As they are now.
    std::vector<Window> windows();
    /// Whether there was one with that title to be asked.
    bool activate(const std::string& title);
    bool close(const std::string& title);

  private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};
