// SPDX-License-Identifier: MIT
#include "platform/wayland/KeymapText.h"

#include <sys/mman.h>

namespace wayland {

namespace {
constexpr std::uint32_t greatestKeymap = 4U << 20U;
}  // namespace

std::string keymapText(int file, std::uint32_t size) {
    if (size == 0 || size > greatestKeymap) return {};
    void* const memory = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    if (memory == MAP_FAILED) return {};
    std::string text(static_cast<const char*>(memory), size);
    munmap(memory, size);
    return text.substr(0, text.find('\0'));
}

}  // namespace wayland
