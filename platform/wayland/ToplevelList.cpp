// SPDX-License-Identifier: MIT
#include "platform/wayland/ToplevelList.h"

#include <wlr-foreign-toplevel-management-unstable-v1-client-protocol.h>

#include <algorithm>
#include <span>
#include <utility>

namespace wayland {

namespace {

using Handle = zwlr_foreign_toplevel_handle_v1;

constexpr std::uint32_t activated = 2;

std::string lowered(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return out;
}

ToplevelList::Toplevel& toplevelAt(void* self) { return *static_cast<ToplevelList::Toplevel*>(self); }

}  // namespace

Result<std::unique_ptr<ToplevelList>> ToplevelList::open() {
    auto connection = WaylandConnection::open();
    if (!connection) return connection.error();
    std::unique_ptr<ToplevelList> list(new ToplevelList(std::move(connection).value()));
    list->m_manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(
        list->m_connection->bind(zwlr_foreign_toplevel_manager_v1_interface, 1));
    if (list->m_manager == nullptr || list->m_connection->seat() == nullptr) {
        return Error{"This compositor tells nobody of windows.",
                     "Use a compositor with toplevel management, such as sway, or an X11 session."};
    }
    list->listen();
    const auto told = list->m_connection->roundTrip();
    if (!told) return told.error();
    return list;
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
        .app_id = [](void* self, Handle*, const char* program) { toplevelAt(self).program = program; },
        .output_enter = [](void*, Handle*, wl_output*) {},
        .output_leave = [](void*, Handle*, wl_output*) {},
        .state =
            [](void* self, Handle*, wl_array* states) {
                const std::span numbers(static_cast<const std::uint32_t*>(states->data),
                                        states->size / sizeof(std::uint32_t));
                toplevelAt(self).isActive =
                    std::find(numbers.begin(), numbers.end(), activated) != numbers.end();
            },
        .done = [](void*, Handle*) {},
        .closed = [](void*, Handle*) {}};
    m_toplevels.push_back({.handle = handle, .program = {}, .isActive = false});
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener, &m_toplevels.back());
}

std::vector<std::string> ToplevelList::programs() const {
    std::vector<std::string> found;
    for (const Toplevel& toplevel : m_toplevels) {
        const auto known = std::find_if(found.begin(), found.end(), [&](const std::string& one) {
            return lowered(one) == lowered(toplevel.program);
        });
        if (known == found.end() && !toplevel.program.empty()) {
            found.insert(toplevel.isActive ? found.begin() : found.end(), toplevel.program);
        } else if (known != found.end() && toplevel.isActive) {
            std::rotate(found.begin(), known, known + 1);
        }
    }
    return found;
}

const ToplevelList::Toplevel* ToplevelList::find(std::string_view program) const {
    const Toplevel* found = nullptr;
    for (const Toplevel& toplevel : m_toplevels) {
        const bool isOfIt = lowered(toplevel.program) == lowered(program);
        if (isOfIt && (found == nullptr || toplevel.isActive)) found = &toplevel;
    }
    return found;
}

Result<void> ToplevelList::activate(const Toplevel& toplevel) {
    zwlr_foreign_toplevel_handle_v1_activate(toplevel.handle, m_connection->seat());
    return m_connection->roundTrip();
}

}  // namespace wayland
