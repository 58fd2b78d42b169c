// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace script {

/// A place in a script as people count it: lines and characters (code points) from 1. CR, LF and CR LF each
/// end a line.
struct Location {
    std::uint32_t line = 1;
    std::uint32_t column = 1;

    friend bool operator==(const Location&, const Location&) = default;
};

/// The place of the byte at `offset`, which may be the source's size. Linear in the offset: tokens and nodes
/// carry offsets, and places are made only for messages.
Location locate(std::string_view source, std::size_t offset);

}  // namespace script
