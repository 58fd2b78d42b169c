// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandLayers.h"

#include <wlr-layer-shell-unstable-v1-client-protocol.h>

#include <utility>

#include "platform/wayland/LayerSurface.h"

namespace wayland {

namespace {
/// The first with damage in the buffer's own pixels.
constexpr std::uint32_t compositorVersion = 4;
constexpr std::uint32_t sharedVersion = 1;
constexpr std::uint32_t shellVersion = 3;
}  // namespace

WaylandLayers::WaylandLayers() {
    auto connection = WaylandConnection::open();
    if (!connection || !connection.value()->offers(zwlr_layer_shell_v1_interface)) return;
    m_connection = std::move(connection).value();
    m_compositor =
        static_cast<wl_compositor*>(m_connection->bind(wl_compositor_interface, compositorVersion));
    m_shared = static_cast<wl_shm*>(m_connection->bind(wl_shm_interface, sharedVersion));
    m_shell =
        static_cast<zwlr_layer_shell_v1*>(m_connection->bind(zwlr_layer_shell_v1_interface, shellVersion));
}

WaylandLayers::~WaylandLayers() {
    if (m_shell == nullptr) return;
    // The oldest have no request for it.
    if (zwlr_layer_shell_v1_get_version(m_shell) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION) {
        zwlr_layer_shell_v1_destroy(m_shell);
    } else {
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(m_shell));
    }
    wl_shm_destroy(m_shared);
    wl_compositor_destroy(m_compositor);
}

std::unique_ptr<Layer> WaylandLayers::show(LayerContent& content) {
    if (!areOffered()) return nullptr;
    return std::make_unique<LayerSurface>(LayerParts{*m_connection, *m_compositor, *m_shared, *m_shell},
                                          content);
}

}  // namespace wayland
