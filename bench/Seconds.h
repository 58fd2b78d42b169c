// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Seconds that a piece of work takes.
template <typename Work>
double secondsOf(const Work& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}
