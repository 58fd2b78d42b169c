// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "platform/script/values/Shared.h"

namespace script {

/// Bytes that become more at their end and never move: any number of texts may be the first so many of them.
class GrowingBytes : public Counted {
  public:
    explicit GrowingBytes(std::size_t capacity)
        : m_bytes(new char[capacity]), m_capacity(capacity), m_memory(capacity + sizeof(GrowingBytes)) {}

    std::size_t size() const { return m_size; }
    bool hasRoomFor(std::size_t more) const { return more <= m_capacity - m_size; }
    /// There is room for them.
    void append(std::string_view more) {
        std::memcpy(m_bytes.get() + m_size, more.data(), more.size());
        m_size += more.size();
    }
    std::string_view all() const { return {m_bytes.get(), m_size}; }

  private:
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_capacity;
    std::size_t m_size = 0;
    HeldMemory m_memory;
};

}  // namespace script
