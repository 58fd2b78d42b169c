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

/// Finds the places of bytes. Tokens and nodes carry offsets, and places are made only for messages.
class Locator {
  public:
    /// The source outlives the locator.
    explicit Locator(std::string_view source) : m_source(source) {}

    /// The place of the byte at `offset`, at most the source's size. Goes on from the last place, so that
    /// places asked for in the order of the source cost one walk through it.
    Location at(std::size_t offset);

  private:
    bool isPair(std::size_t position) const;

    std::string_view m_source;
    std::size_t m_position = 0;
    Location m_place;
};

/// The place of one byte.
inline Location locate(std::string_view source, std::size_t offset) { return Locator(source).at(offset); }

/// The offset in bytes of a place; the end of its line for a place behind that.
std::size_t offsetOf(std::string_view source, const Location& place);

/// The line with that number, without its end; empty behind the last one.
std::string_view lineOf(std::string_view source, std::uint32_t number);

}  // namespace script
