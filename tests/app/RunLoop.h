// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Calls the function from within the event loop and gives the status that it ends the loop with. One that
/// does not end within 10 s gives -1.
int runLoopWith(const std::function<void()>& function);
