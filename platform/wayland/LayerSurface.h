// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>

#include <memory>
#include <optional>
#include <vector>

#include "platform/Layers.h"
#include "platform/wayland/LayerInput.h"
#include "platform/wayland/OutputScales.h"
#include "platform/wayland/PixelBuffer.h"
#include "platform/wayland/WaylandConnection.h"

struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;

namespace wayland {

/// What a compositor with layers offers to those who draw on them; all outlive the layers.
struct LayerParts {
    WaylandConnection& connection;
    wl_compositor& compositor;
    wl_shm& shared;
    zwlr_layer_shell_v1& shell;
};

/// A picture on the compositor's topmost layer.
///
///     measuring --configure--> placed --configure--> shown --closed--> closed --refresh()--> measuring
///
/// Measuring, it asks for the whole screen without painting a pixel, and so learns how large that is; then
/// its content says where it goes. Closed: its screen has gone, and it tries again with the next refresh.
class LayerSurface final : public Layer {
  public:
    LayerSurface(const LayerParts& parts, LayerContent& content);
    ~LayerSurface() override;
    LayerSurface(const LayerSurface&) = delete;
    LayerSurface& operator=(const LayerSurface&) = delete;

    // Layer
    void refresh() override;

  private:
    enum class State { measuring, placed, shown, closed };

    void open();
    void close();
    void configured(std::uint32_t serial, LayerSize size);
    void place();
    void screenChanges();
    void paintWhenFree();
    void paint();
    PixelBuffer* freeBuffer(int width, int height);
    void frameEnds();

    LayerParts m_parts;
    LayerContent& m_content;
    OutputScales m_scales;
    State m_state = State::closed;
    wl_surface* m_surface = nullptr;
    zwlr_layer_surface_v1* m_layer = nullptr;
    /// Until the compositor wants the next picture.
    wl_callback* m_frame = nullptr;
    LayerSize m_screen;
    /// The size that it was placed with.
    LayerSize m_size;
    int m_scale = 1;
    bool m_isStale = true;
    std::vector<std::unique_ptr<PixelBuffer>> m_buffers;
    std::optional<LayerInput> m_input;
};

}  // namespace wayland
