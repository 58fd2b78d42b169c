// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

/// A window of any program.
struct ForeignWindow {
    /// A native window's app_id, an X11 window's class.
    std::string program;
    /// Whether keys go to it.
    bool isActive = false;
};

/// The windows of all programs as they were when this was made.
class ForeignWindows {
  public:
    virtual ~ForeignWindows() = default;

    virtual std::vector<ForeignWindow> windows() const = 0;
    /// Gives the focus to the one of that place in windows(); returns when it has it.
    virtual Result<void> activate(std::size_t place) = 0;
};

namespace foreignwindows {

/// The names of all programs that have a window, each once, the one that keys go to first.
std::vector<std::string> programsOf(const std::vector<ForeignWindow>& windows);
/// The place of one of that program, in any case; of the one that keys go to before others. The number of
/// windows if there is none.
std::size_t find(const std::vector<ForeignWindow>& windows, std::string_view program);

}  // namespace foreignwindows
