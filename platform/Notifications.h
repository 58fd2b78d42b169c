// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Short messages that the desktop shows beside the user's work and takes away again.
class Notifications {
  public:
    virtual ~Notifications() = default;

    /// Shows a message in UTF-8: plain text, neither escaped nor marked up. Returns at once; where nobody
    /// shows messages, nothing happens.
    virtual void post(std::string_view title, std::string_view text) = 0;
};
