// SPDX-License-Identifier: MIT
#include "platform/wayland/LayerSurface.h"

#include <wlr-layer-shell-unstable-v1-client-protocol.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace wayland {

namespace {

constexpr std::uint32_t allEdges = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                                   ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
constexpr std::uint32_t upperLeft = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT;
constexpr std::int32_t fromTheEdge = -1;
constexpr std::uint32_t keyboardWhileShown = 1;
/// One that the compositor reads and one to paint; the third for a compositor that holds on to two.
constexpr std::size_t mostBuffers = 3;

}  // namespace

LayerSurface::LayerSurface(const LayerParts& parts, LayerContent& content)
    : m_parts(parts), m_content(content), m_scales(parts.connection) {
    open();
}

LayerSurface::~LayerSurface() {
    close();
    m_parts.connection.flush();
}

void LayerSurface::open() {
    static constexpr wl_surface_listener surfaceListener{
        .enter =
            [](void* self, wl_surface*, wl_output* output) {
                static_cast<LayerSurface*>(self)->m_scales.surfaceEnters(output);
                static_cast<LayerSurface*>(self)->screenChanges();
            },
        .leave =
            [](void* self, wl_surface*, wl_output* output) {
                static_cast<LayerSurface*>(self)->m_scales.surfaceLeaves(output);
                static_cast<LayerSurface*>(self)->screenChanges();
            }};
    static constexpr zwlr_layer_surface_v1_listener layerListener{
        .configure =
            [](void* self, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t width,
               std::uint32_t height) {
                static_cast<LayerSurface*>(self)->configured(
                    serial, {static_cast<int>(width), static_cast<int>(height)});
            },
        .closed = [](void* self, zwlr_layer_surface_v1*) { static_cast<LayerSurface*>(self)->close(); }};
    m_surface = wl_compositor_create_surface(&m_parts.compositor);
    wl_surface_add_listener(m_surface, &surfaceListener, this);
    m_layer = zwlr_layer_shell_v1_get_layer_surface(&m_parts.shell, m_surface, nullptr,
                                                    ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "keyrill");
    zwlr_layer_surface_v1_add_listener(m_layer, &layerListener, this);
    zwlr_layer_surface_v1_set_anchor(m_layer, allEdges);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layer, fromTheEdge);
    if (m_content.takesInput()) {
        zwlr_layer_surface_v1_set_keyboard_interactivity(m_layer, keyboardWhileShown);
        m_input.emplace(m_parts.connection, *m_surface, m_content);
    } else {
        wl_region* const nothing = wl_compositor_create_region(&m_parts.compositor);
        wl_surface_set_input_region(m_surface, nothing);
        wl_region_destroy(nothing);
    }
    wl_surface_commit(m_surface);
    m_parts.connection.flush();
    m_state = State::measuring;
}

void LayerSurface::close() {
    if (m_state == State::closed) return;
    m_input.reset();
    if (m_frame != nullptr) wl_callback_destroy(std::exchange(m_frame, nullptr));
    zwlr_layer_surface_v1_destroy(std::exchange(m_layer, nullptr));
    wl_surface_destroy(std::exchange(m_surface, nullptr));
    m_buffers.clear();
    m_state = State::closed;
}

void LayerSurface::configured(std::uint32_t serial, LayerSize size) {
    zwlr_layer_surface_v1_ack_configure(m_layer, serial);
    if (m_state == State::measuring) {
        m_screen = size;
        place();
        wl_surface_commit(m_surface);
        m_parts.connection.flush();
        m_state = State::placed;
    } else {
        m_state = State::shown;
        refresh();
    }
}

void LayerSurface::place() {
    m_size = m_content.layerSize();
    const LayerPoint origin = m_content.placeOn(m_screen);
    zwlr_layer_surface_v1_set_size(m_layer, static_cast<std::uint32_t>(m_size.width),
                                   static_cast<std::uint32_t>(m_size.height));
    zwlr_layer_surface_v1_set_anchor(m_layer, upperLeft);
    zwlr_layer_surface_v1_set_margin(m_layer, static_cast<std::int32_t>(std::lround(origin.y)), 0, 0,
                                     static_cast<std::int32_t>(std::lround(origin.x)));
}

void LayerSurface::screenChanges() {
    if (m_state == State::shown && m_scales.scale() != m_scale) refresh();
}

void LayerSurface::refresh() {
    m_isStale = true;
    if (m_state == State::closed) open();
    if (m_state == State::shown && m_content.layerSize() != m_size) place();
    paintWhenFree();
}

void LayerSurface::paintWhenFree() {
    if (m_state == State::shown && m_isStale && m_frame == nullptr) paint();
}

void LayerSurface::paint() {
    m_scale = m_scales.scale();
    PixelBuffer* const buffer = freeBuffer(m_size.width * m_scale, m_size.height * m_scale);
    if (buffer == nullptr) return;
    std::fill(buffer->pixels().begin(), buffer->pixels().end(), 0U);
    m_content.paint(
        {.pixels = buffer->pixels(), .width = buffer->width(), .height = buffer->height(), .scale = m_scale});
    static constexpr wl_callback_listener listener{.done = [](void* self, wl_callback*, std::uint32_t) {
        static_cast<LayerSurface*>(self)->frameEnds();
    }};
    m_frame = wl_surface_frame(m_surface);
    wl_callback_add_listener(m_frame, &listener, this);
    buffer->attachTo(*m_surface);
    wl_surface_set_buffer_scale(m_surface, m_scale);
    wl_surface_damage_buffer(m_surface, 0, 0, buffer->width(), buffer->height());
    wl_surface_commit(m_surface);
    m_parts.connection.flush();
    m_isStale = false;
}

/// Null where the compositor reads all of them, until it lets go of one, or where there is no memory.
PixelBuffer* LayerSurface::freeBuffer(int width, int height) {
    std::erase_if(m_buffers, [&](const auto& buffer) {
        return !buffer->isRead() && (buffer->width() != width || buffer->height() != height);
    });
    const auto free = std::find_if(m_buffers.begin(), m_buffers.end(), [&](const auto& buffer) {
        return !buffer->isRead() && buffer->width() == width && buffer->height() == height;
    });
    if (free != m_buffers.end()) return free->get();
    if (m_buffers.size() >= mostBuffers) return nullptr;
    auto made = PixelBuffer::make(m_parts.shared, width, height, [this] { paintWhenFree(); });
    return made ? m_buffers.emplace_back(std::move(made)).get() : nullptr;
}

void LayerSurface::frameEnds() {
    wl_callback_destroy(std::exchange(m_frame, nullptr));
    paintWhenFree();
}

}  // namespace wayland
