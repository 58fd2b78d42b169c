// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>

/// The least stack with which the language gets along, whatever the script.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr std::size_t smallStack = std::size_t{4} << 20U;  // frames are wider there
#else
inline constexpr std::size_t smallStack = std::size_t{1} << 20U;
#endif

/// Runs it on a thread with such a stack, and waits for its end.
void onSmallStack(const std::function<void()>& what);
