// SPDX-License-Identifier: MIT
#include "platform/x11/windows/WindowFocus.h"

namespace x11 {

WindowFocus::WindowFocus(const XConnection& connection)
    : m_connection(connection), m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW")) {}

xcb_window_t WindowFocus::holder() const {
    const XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

bool WindowFocus::isIn(xcb_window_t window) const {
    xcb_window_t inside = holder();
    while (inside > XCB_INPUT_FOCUS_POINTER_ROOT && inside != m_connection.root()) {
        if (inside == window) return true;
        inside = parentOf(inside);
    }
    return false;
}

xcb_window_t WindowFocus::activeWindow() const {
    return propertyOf(m_connection, m_connection.root(), m_activeWindow, XCB_ATOM_WINDOW);
}

void WindowFocus::request(xcb_window_t window, Source source, std::uint32_t time) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_activeWindow;
    message.data.data32[0] = static_cast<std::uint32_t>(source);
    message.data.data32[1] = time;
    xcb_send_event(m_connection, 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
}

xcb_window_t WindowFocus::parentOf(xcb_window_t window) const {
    const XReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    return reply ? reply->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

std::uint32_t propertyOf(const XConnection& connection, xcb_window_t window, xcb_atom_t name,
                         xcb_atom_t type) {
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, name, type, 0, 1), nullptr));
    if (!reply || reply->format != 32 || reply->value_len == 0) return 0;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

}  // namespace x11
