// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

/// Short messages that the desktop shows beside the user's work and takes away again.
class Notifications {
  public:
    /// Called at most once, with a message that nobody shows; before the call returns or later.
    using Unshown = std::function<void()>;

    virtual ~Notifications() = default;

    /// Shows a message in UTF-8: plain text, neither escaped nor marked up. Returns at once. Where nobody
    /// shows messages, nothing happens but the call of `unshown`, which may be empty.
    virtual void post(std::string_view title, std::string_view text, Unshown unshown) = 0;
    void post(std::string_view title, std::string_view text) { post(title, text, {}); }
};
