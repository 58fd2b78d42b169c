// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <utility>

/// Owns a file descriptor of the system and closes it at the end. Moved, it leaves an empty one behind.
class Descriptor {
  public:
    Descriptor() = default;
    /// Takes the number over; one below zero, which a failed call gives, makes an empty one.
    explicit Descriptor(int number) : m_number(number < 0 ? none : number) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) reset(other.release());
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    explicit operator bool() const { return m_number != none; }
    /// -1 for an empty one.
    int number() const { return m_number; }

    /// Gives the number away, to be closed elsewhere; -1 for an empty one.
    int release() { return std::exchange(m_number, none); }
    /// Closes what is owned, and owns `number` then. Leaves errno as it was.
    void reset(int number = none);

  private:
    static constexpr int none = -1;

    int m_number = none;
};

/// Writes all of the bytes to an open file, from where it stands. 0, or the number of the error (errno(3)),
/// with a part of them written.
int writeAll(int file, std::string_view bytes);
