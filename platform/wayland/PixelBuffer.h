// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace wayland {

/// A picture in memory that is shared with the compositor.
class PixelBuffer {
  public:
    /// All transparent; null where there is no memory for it. `shared` is the compositor's wl_shm;
    /// `released` is called when the compositor does not read it any more.
    static std::unique_ptr<PixelBuffer> make(wl_shm& shared, int width, int height,
                                             std::function<void()> released);
    ~PixelBuffer();
    PixelBuffer(const PixelBuffer&) = delete;
    PixelBuffer& operator=(const PixelBuffer&) = delete;

    int width() const { return m_width; }
    int height() const { return m_height; }
    /// Not to be written while the compositor reads them.
    std::span<std::uint32_t> pixels() const { return m_pixels; }
    bool isRead() const { return m_isRead; }

    /// What the surface shows from its next commit on; the compositor reads it until it says otherwise.
    void attachTo(wl_surface& surface);

  private:
    PixelBuffer(wl_buffer* buffer, std::span<std::uint32_t> pixels, int width, int height,
                std::function<void()> released);

    static void release(void* self, wl_buffer* buffer);

    wl_buffer* m_buffer;
    std::span<std::uint32_t> m_pixels;
    int m_width;
    int m_height;
    std::function<void()> m_released;
    bool m_isRead = false;
};

}  // namespace wayland
