// SPDX-License-Identifier: MIT
#include "platform/wayland/PixelBuffer.h"

#include <sys/mman.h>
#include <unistd.h>

#include <utility>

#include "platform/Descriptor.h"

namespace wayland {

std::unique_ptr<PixelBuffer> PixelBuffer::make(wl_shm& shared, int width, int height,
                                               std::function<void()> released) {
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const std::size_t size = count * sizeof(std::uint32_t);
    const Descriptor file(memfd_create("layer", MFD_CLOEXEC));
    if (!file || ftruncate(file.number(), static_cast<off_t>(size)) != 0) return nullptr;
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.number(), 0);
    if (memory == MAP_FAILED) return nullptr;
    wl_shm_pool* const pool = wl_shm_create_pool(&shared, file.number(), static_cast<std::int32_t>(size));
    wl_buffer* const buffer = wl_shm_pool_create_buffer(
        pool, 0, width, height, width * static_cast<int>(sizeof(std::uint32_t)), WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    return std::unique_ptr<PixelBuffer>(new PixelBuffer(buffer, {static_cast<std::uint32_t*>(memory), count},
                                                        width, height, std::move(released)));
}

PixelBuffer::PixelBuffer(wl_buffer* buffer, std::span<std::uint32_t> pixels, int width, int height,
                         std::function<void()> released)
    : m_buffer(buffer), m_pixels(pixels), m_width(width), m_height(height), m_released(std::move(released)) {
    static constexpr wl_buffer_listener listener{.release = release};
    wl_buffer_add_listener(m_buffer, &listener, this);
}

PixelBuffer::~PixelBuffer() {
    wl_buffer_destroy(m_buffer);
    munmap(m_pixels.data(), m_pixels.size_bytes());
}

void PixelBuffer::release(void* self, wl_buffer* /*buffer*/) {
    auto& buffer = *static_cast<PixelBuffer*>(self);
    buffer.m_isRead = false;
    buffer.m_released();
}

void PixelBuffer::attachTo(wl_surface& surface) {
    wl_surface_attach(&surface, m_buffer, 0, 0);
    m_isRead = true;
}

}  // namespace wayland
