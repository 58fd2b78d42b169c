// SPDX-License-Identifier: MIT
#include "platform/wayland/OutputScales.h"

#include <algorithm>

namespace wayland {

namespace {
/// The first in which screens tell their scale; the next adds names, which nobody asks for.
constexpr std::uint32_t outputVersion = 3;
}  // namespace

OutputScales::OutputScales(const WaylandConnection& connection) {
    static constexpr wl_output_listener listener{
        .geometry = [](void*, wl_output*, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                       std::int32_t, const char*, const char*, std::int32_t) {},
        .mode = [](void*, wl_output*, std::uint32_t, std::int32_t, std::int32_t, std::int32_t) {},
        .done = [](void*, wl_output*) {},
        .scale = [](void* self, wl_output*,
                    std::int32_t factor) { static_cast<Output*>(self)->scale = std::max(1, factor); },
        .name = [](void*, wl_output*, const char*) {},
        .description = [](void*, wl_output*, const char*) {}};
    for (void* const bound : connection.bindAll(wl_output_interface, outputVersion)) {
        m_outputs.push_back(std::make_unique<Output>(Output{.output = static_cast<wl_output*>(bound)}));
        wl_output_add_listener(m_outputs.back()->output, &listener, m_outputs.back().get());
    }
}

OutputScales::~OutputScales() {
    for (const auto& one : m_outputs) wl_output_release(one->output);
}

void OutputScales::setEntered(const wl_output* output, bool isEntered) {
    for (const auto& one : m_outputs) {
        if (one->output == output) one->isEntered = isEntered;
    }
}

void OutputScales::surfaceEnters(const wl_output* output) { setEntered(output, true); }
void OutputScales::surfaceLeaves(const wl_output* output) { setEntered(output, false); }

int OutputScales::scale() const {
    const bool isOnAny =
        std::any_of(m_outputs.begin(), m_outputs.end(), [](const auto& output) { return output->isEntered; });
    int greatest = 1;
    for (const auto& output : m_outputs) {
        if (output->isEntered || !isOnAny) greatest = std::max(greatest, output->scale);
    }
    return greatest;
}

}  // namespace wayland
