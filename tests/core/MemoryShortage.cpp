// SPDX-License-Identifier: MIT
#include "core/MemoryShortage.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

// No allocation has this size.
constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): operator new can have no arguments
// more.
thread_local std::size_t refusedSize = none;

}  // namespace

MemoryShortage::MemoryShortage(std::size_t size) { refusedSize = size; }
MemoryShortage::~MemoryShortage() { refusedSize = none; }

void* operator new(std::size_t size) {
    void* memory = size == refusedSize ? nullptr : std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
