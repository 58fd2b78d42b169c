// SPDX-License-Identifier: MIT
#include "compositor/WaylandMouse.h"

#include <linux/input-event-codes.h>
#include <wayland-client.h>
#include <wlr-virtual-pointer-unstable-v1-client-protocol.h>

#include <initializer_list>
#include <stdexcept>
#include <string_view>

struct WaylandMouse::Parts {
    wl_display* display = nullptr;
    wl_registry* registry = nullptr;
    zwlr_virtual_pointer_manager_v1* manager = nullptr;
    zwlr_virtual_pointer_v1* pointer = nullptr;

    static void added(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t /*version*/) {
        if (std::string_view(interface) != zwlr_virtual_pointer_manager_v1_interface.name) return;
        static_cast<Parts*>(self)->manager = static_cast<zwlr_virtual_pointer_manager_v1*>(
            wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1));
    }

    void endFrame() const {
        zwlr_virtual_pointer_v1_frame(pointer);
        wl_display_roundtrip(display);
    }
};

WaylandMouse::WaylandMouse(const std::string& socket) : m_parts(std::make_unique<Parts>()) {
    m_parts->display = wl_display_connect(socket.c_str());
    if (m_parts->display == nullptr) throw std::runtime_error("no compositor at " + socket);
    static constexpr wl_registry_listener listener{
        .global = Parts::added, .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    m_parts->registry = wl_display_get_registry(m_parts->display);
    wl_registry_add_listener(m_parts->registry, &listener, m_parts.get());
    wl_display_roundtrip(m_parts->display);
    if (m_parts->manager == nullptr) throw std::runtime_error("the compositor has no virtual pointers");
    m_parts->pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(m_parts->manager, nullptr);
    wl_display_roundtrip(m_parts->display);
}

WaylandMouse::~WaylandMouse() {
    zwlr_virtual_pointer_v1_destroy(m_parts->pointer);
    zwlr_virtual_pointer_manager_v1_destroy(m_parts->manager);
    wl_registry_destroy(m_parts->registry);
    wl_display_disconnect(m_parts->display);
}

void WaylandMouse::click(unsigned x, unsigned y, unsigned width, unsigned height) {
    zwlr_virtual_pointer_v1_motion_absolute(m_parts->pointer, 0, x, y, width, height);
    m_parts->endFrame();
    for (const auto state : {WL_POINTER_BUTTON_STATE_PRESSED, WL_POINTER_BUTTON_STATE_RELEASED}) {
        zwlr_virtual_pointer_v1_button(m_parts->pointer, 0, BTN_LEFT, state);
        m_parts->endFrame();
    }
}
