// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Knows the newest version of the program.
class UpdateService {
  public:
    virtual ~UpdateService() = default;

    /// Whether there is a newer version than the running one, by the numbers of both ("1.10" is newer than
    /// "1.9", "1.0" and "1" are the same). Answers within 4 seconds; false whenever the answer cannot be had.
    virtual bool isNewerThan(std::string_view runningVersion) = 0;
};
