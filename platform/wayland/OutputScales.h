// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>

#include <memory>
#include <vector>

#include "platform/wayland/WaylandConnection.h"

namespace wayland {

/// How many of their own pixels the compositor's screens have for a logical one, and on which of them a
/// surface is.
class OutputScales {
  public:
    /// Of those that are there now.
    explicit OutputScales(const WaylandConnection& connection);
    ~OutputScales();
    OutputScales(const OutputScales&) = delete;
    OutputScales& operator=(const OutputScales&) = delete;

    void surfaceEnters(const wl_output* output);
    void surfaceLeaves(const wl_output* output);

    /// The greatest of those that the surface is on, so that it is sharp on each; of all, while it is on
    /// none. At least 1.
    int scale() const;

  private:
    struct Output {
        wl_output* output = nullptr;
        int scale = 1;
        bool isEntered = false;
    };

    void setEntered(const wl_output* output, bool isEntered);

    /// The compositor's answers refer to them by their place in memory.
    std::vector<std::unique_ptr<Output>> m_outputs;
};

}  // namespace wayland
