// SPDX-License-Identifier: MIT
#include "platform/wayland/ToplevelList.h"

#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

#include <algorithm>
#include <span>
#include <utility>

#include "platform/Sentence.h"

namespace wayland {

namespace {

using Handle = zwlr_foreign_toplevel_handle_v1;

constexpr std::uint32_t activated = 2;

}  // namespace

bool ToplevelList::isOffered(const WaylandConnection& connection) {
    return connection.offers(zwlr_foreign_toplevel_manager_v1_interface) && connection.seat() != nullptr;
}

Result<std::unique_ptr<ForeignWindows>> ToplevelList::open() {
    auto connection = WaylandConnection::open();
    if (!connection) return connection.error();
    std::unique_ptr<ToplevelList> list(new ToplevelList(std::move(connection).value()));
    list->m_manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(
        list->m_connection->bind(zwlr_foreign_toplevel_manager_v1_interface, 1));
    if (list->m_manager == nullptr || list->m_connection->seat() == nullptr) {
        return Error{sentence("Windows", "This compositor tells nobody of windows."),
                     sentence("Windows",
                              "Use a compositor with toplevel management, such as sway, or an X11 session.")};
    }
    list->listen();
    const auto told = list->m_connection->roundTrip();
    if (!told) return told.error();
    return std::unique_ptr<ForeignWindows>(std::move(list));
}

ToplevelList::~ToplevelList() {
    for (const Toplevel& toplevel : m_toplevels) zwlr_foreign_toplevel_handle_v1_destroy(toplevel.handle);
    if (m_manager != nullptr) zwlr_foreign_toplevel_manager_v1_destroy(m_manager);
}

void ToplevelList::listen() {
    static constexpr zwlr_foreign_toplevel_manager_v1_listener listener{
        .toplevel = [](void* self, zwlr_foreign_toplevel_manager_v1*,
                       Handle* handle) { static_cast<ToplevelList*>(self)->add(handle); },
        .finished = [](void*, zwlr_foreign_toplevel_manager_v1*) {}};
    zwlr_foreign_toplevel_manager_v1_add_listener(m_manager, &listener, this);
}

void ToplevelList::add(Handle* handle) {
    static constexpr zwlr_foreign_toplevel_handle_v1_listener listener{
        .title = [](void*, Handle*, const char*) {},
        .app_id = [](void* self, Handle*, const char* program) { windowAt(self).program = program; },
        .output_enter = [](void*, Handle*, wl_output*) {},
        .output_leave = [](void*, Handle*, wl_output*) {},
        .state =
            [](void* self, Handle*, wl_array* states) {
                const std::span numbers(static_cast<const std::uint32_t*>(states->data),
                                        states->size / sizeof(std::uint32_t));
                windowAt(self).isActive =
                    std::find(numbers.begin(), numbers.end(), activated) != numbers.end();
            },
        .done = [](void*, Handle*) {},
        .closed = [](void*, Handle*) {}};
    m_toplevels.push_back({.handle = handle, .window = {}});
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener, &m_toplevels.back());
}

std::vector<ForeignWindow> ToplevelList::windows() const {
    std::vector<ForeignWindow> windows;
    windows.reserve(m_toplevels.size());
    for (const Toplevel& toplevel : m_toplevels) windows.push_back(toplevel.window);
    return windows;
}

Result<void> ToplevelList::activate(std::size_t place) {
    zwlr_foreign_toplevel_handle_v1_activate(m_toplevels[place].handle, m_connection->seat());
    return m_connection->roundTrip();
}

}  // namespace wayland
