// SPDX-License-Identifier: MIT
#include "DockingHost.h"

#include <poll.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace {

using Clock = std::chrono::steady_clock;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

constexpr std::uint32_t requestDock = 0;

bool waitForEvents(xcb_connection_t* connection, Clock::time_point end) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    if (left <= 0) return false;
    pollfd descriptor{xcb_get_file_descriptor(connection), POLLIN, 0};
    return poll(&descriptor, 1, static_cast<int>(left)) > 0;
}

}  // namespace

DockingHost::DockingHost(const std::string& display) : m_connection(xcb_connect(display.c_str(), nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0) throw std::runtime_error("no display " + display);
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    becomeTray();
}

DockingHost::~DockingHost() { xcb_disconnect(m_connection); }

xcb_atom_t DockingHost::atom(const std::string& name) const {
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const std::unique_ptr<xcb_intern_atom_reply_t, Free> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply->atom;
}

void DockingHost::becomeTray() {
    m_window = xcb_generate_id(m_connection);
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 200, 32, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(m_connection, m_window);
    const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
    xcb_set_selection_owner(m_connection, m_window, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t manager{};
    manager.response_type = XCB_CLIENT_MESSAGE;
    manager.format = 32;
    manager.window = m_root;
    manager.type = atom("MANAGER");
    manager.data.data32[1] = selection;
    manager.data.data32[2] = m_window;
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&manager));
    xcb_flush(m_connection);
}

void DockingHost::dock(xcb_window_t icon) {
    m_icon = icon;
    const std::uint32_t size[] = {22, 22};
    xcb_reparent_window(m_connection, icon, m_window, 0, 0);
    xcb_configure_window(m_connection, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
    xcb_map_window(m_connection, icon);
    xcb_flush(m_connection);
}

bool DockingHost::waitForIcon(std::chrono::milliseconds deadline) {
    const auto end = Clock::now() + deadline;
    do {
        while (true) {
            const std::unique_ptr<xcb_generic_event_t, Free> event(xcb_poll_for_event(m_connection));
            if (!event) break;
            const int type = event->response_type & 0x7f;
            if (type == XCB_CLIENT_MESSAGE) {
                const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
                if (message->data.data32[1] == requestDock && m_icon == 0) dock(message->data.data32[2]);
            } else if (type == XCB_MAP_NOTIFY) {
                if (reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window == m_icon)
                    return true;
            }
        }
    } while (waitForEvents(m_connection, end));
    return false;
}
