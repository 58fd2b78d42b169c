// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

/// Looks for something in all memory that a process can write: its heap, its stacks, its variables.
class ProcessMemory {
  public:
    using Bytes = std::vector<std::uint8_t>;

    /// Reads it as it is now. Fails the test where that is not allowed.
    explicit ProcessMemory(pid_t process);

    /// Where at least so many consecutive bytes of the sequence lie at one distance from each other,
    /// whichever from 1 to `longestStride`: one line each, "ADDRESS: stride 24, from number 0 on, 16 long".
    std::vector<std::string> traces(const Bytes& sequence, std::size_t fewest) const;

    static constexpr std::size_t longestStride = 512;

  private:
    struct Region {
        std::uint64_t address = 0;
        Bytes content;
    };

    std::vector<Region> m_regions;
};
