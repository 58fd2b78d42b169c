// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/Layers.h"
#include "platform/wayland/WaylandConnection.h"

struct zwlr_layer_shell_v1;

namespace wayland {

/// Layers where the compositor has wlroots' layer shell, as most but GNOME's have. On a connection of their
/// own: whoever waits for an answer on another one is told nothing of keys and clicks meanwhile.
class WaylandLayers final : public Layers {
  public:
    WaylandLayers();
    ~WaylandLayers() override;
    WaylandLayers(const WaylandLayers&) = delete;
    WaylandLayers& operator=(const WaylandLayers&) = delete;

    bool areOffered() const override { return m_shell != nullptr; }
    std::unique_ptr<Layer> show(LayerContent& content) override;

    /// What is to be served; null where layers are not offered.
    EventSource* eventSource() const { return m_shell == nullptr ? nullptr : m_connection.get(); }

  private:
    std::unique_ptr<WaylandConnection> m_connection;
    wl_compositor* m_compositor = nullptr;
    wl_shm* m_shared = nullptr;
    zwlr_layer_shell_v1* m_shell = nullptr;
};

}  // namespace wayland
