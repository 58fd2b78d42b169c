// SPDX-License-Identifier: MIT
#include "compositor/Toplevels.h"

#include <wayland-client.h>
#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

#include <algorithm>
#include <list>
#include <span>
#include <stdexcept>
#include <string_view>

struct Toplevels::Parts {
    using Handle = zwlr_foreign_toplevel_handle_v1;
    struct Toplevel {
        Handle* handle = nullptr;
        Window window = {};
        bool isClosed = false;
    };

    explicit Parts(const std::string& socket) : display(wl_display_connect(socket.c_str())) {
        if (display == nullptr) throw std::runtime_error("no compositor at " + socket);
        static constexpr wl_registry_listener listener{
            .global = [](void* self, wl_registry*, std::uint32_t name, const char* interface,
                         std::uint32_t) { static_cast<Parts*>(self)->found(name, interface); },
            .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
        registry = wl_display_get_registry(display);
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(display);
        if (manager == nullptr || seat == nullptr) throw std::runtime_error("no toplevels at " + socket);
        wl_display_roundtrip(display);
    }
    ~Parts() { wl_display_disconnect(display); }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    void found(std::uint32_t name, std::string_view interface) {
        if (interface == wl_seat_interface.name && seat == nullptr)
            seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
        if (interface != zwlr_foreign_toplevel_manager_v1_interface.name) return;
        static constexpr zwlr_foreign_toplevel_manager_v1_listener listener{
            .toplevel = [](void* self, zwlr_foreign_toplevel_manager_v1*,
                           Handle* handle) { static_cast<Parts*>(self)->add(handle); },
            .finished = [](void*, zwlr_foreign_toplevel_manager_v1*) {}};
        manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(
            wl_registry_bind(registry, name, &zwlr_foreign_toplevel_manager_v1_interface, 1));
        zwlr_foreign_toplevel_manager_v1_add_listener(manager, &listener, this);
    }

    void add(Handle* handle) {
        static constexpr zwlr_foreign_toplevel_handle_v1_listener listener{
            .title = [](void* self, Handle*,
                        const char* title) { static_cast<Toplevel*>(self)->window.title = title; },
            .app_id = [](void*, Handle*, const char*) {},
            .output_enter = [](void*, Handle*, wl_output*) {},
            .output_leave = [](void*, Handle*, wl_output*) {},
            .state =
                [](void* self, Handle*, wl_array* states) {
                    const std::span numbers(static_cast<const std::uint32_t*>(states->data),
                                            states->size / sizeof(std::uint32_t));
                    // Activated, in the protocol's list of states.
                    static_cast<Toplevel*>(self)->window.isActive =
                        std::find(numbers.begin(), numbers.end(), 2U) != numbers.end();
                },
            .done = [](void*, Handle*) {},
            .closed = [](void* self, Handle*) { static_cast<Toplevel*>(self)->isClosed = true; }};
        toplevels.push_back({.handle = handle});
        zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener, &toplevels.back());
    }

    /// As the compositor has told by now.
    void update() {
        if (wl_display_roundtrip(display) < 0) throw std::runtime_error("the compositor has gone");
        for (const Toplevel& toplevel : toplevels) {
            if (toplevel.isClosed) zwlr_foreign_toplevel_handle_v1_destroy(toplevel.handle);
        }
        toplevels.remove_if([](const Toplevel& toplevel) { return toplevel.isClosed; });
    }
    Handle* named(const std::string& title) {
        update();
        const auto place = std::find_if(toplevels.begin(), toplevels.end(), [&](const Toplevel& toplevel) {
            return toplevel.window.title == title;
        });
        return place == toplevels.end() ? nullptr : place->handle;
    }

    wl_display* display;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_foreign_toplevel_manager_v1* manager = nullptr;
    /// Listeners point to them.
    std::list<Toplevel> toplevels;
};

Toplevels::Toplevels(const std::string& socket) : m_parts(std::make_unique<Parts>(socket)) {}
Toplevels::~Toplevels() = default;

std::vector<Toplevels::Window> Toplevels::windows() {
    m_parts->update();
    std::vector<Window> windows;
    for (const Parts::Toplevel& toplevel : m_parts->toplevels) windows.push_back(toplevel.window);
    return windows;
}

bool Toplevels::activate(const std::string& title) {
    auto* const handle = m_parts->named(title);
    if (handle == nullptr) return false;
    zwlr_foreign_toplevel_handle_v1_activate(handle, m_parts->seat);
    return wl_display_roundtrip(m_parts->display) >= 0;
}

bool Toplevels::close(const std::string& title) {
    auto* const handle = m_parts->named(title);
    if (handle == nullptr) return false;
    zwlr_foreign_toplevel_handle_v1_close(handle);
    return wl_display_roundtrip(m_parts->display) >= 0;
}
