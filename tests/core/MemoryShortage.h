// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// While one lives, memory for an object of that size cannot be had, as if the machine had none left.
class MemoryShortage {
  public:
    explicit MemoryShortage(std::size_t size);
    ~MemoryShortage();
    MemoryShortage(const MemoryShortage&) = delete;
    MemoryShortage& operator=(const MemoryShortage&) = delete;
};
