// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// Calls the function from within the event loop and gives the status that it ends the loop with. One that
/// does not end within 10 s gives -1.
int runLoopWith(const std::function<void()>& function);

/// Lets events be handled until that is so, at most as long as `patience`; whether it is.
bool comesTrue(const std::function<bool()>& isSo,
               std::chrono::milliseconds patience = std::chrono::seconds(10));
