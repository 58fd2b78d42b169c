// SPDX-License-Identifier: MIT
#include "platform/x11/server/WindowTree.h"

#include "platform/x11/server/XConnection.h"

namespace x11 {

namespace {

XReply<xcb_query_tree_reply_t> around(xcb_connection_t* connection, xcb_window_t window) {
    return replyTo(connection, xcb_query_tree(connection, window), xcb_query_tree_reply);
}

}  // namespace

xcb_window_t WindowTree::focus() const {
    const auto reply = replyTo(m_connection, xcb_get_input_focus(m_connection), xcb_get_input_focus_reply);
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_window_t WindowTree::receiver() const {
    const xcb_window_t focused = focus();
    if (focused != XCB_INPUT_FOCUS_POINTER_ROOT) return focused;
    xcb_window_t window = m_connection.root();
    for (;;) {
        const auto pointer =
            replyTo(m_connection, xcb_query_pointer(m_connection, window), xcb_query_pointer_reply);
        if (!pointer || pointer->child == XCB_WINDOW_NONE) return window;
        window = pointer->child;
    }
}

std::vector<xcb_window_t> WindowTree::lineOf(xcb_window_t window) const {
    std::vector<xcb_window_t> line;
    while (window > XCB_INPUT_FOCUS_POINTER_ROOT && window != m_connection.root()) {
        line.push_back(window);
        const auto place = around(m_connection, window);
        window = place ? place->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    }
    return line;
}

std::vector<xcb_window_t> WindowTree::childrenOf(xcb_window_t window) const {
    const auto place = around(m_connection, window);
    if (!place) return {};
    const xcb_window_t* first = xcb_query_tree_children(place.get());
    return {first, first + xcb_query_tree_children_length(place.get())};
}

bool WindowTree::exists(xcb_window_t window) const { return around(m_connection, window) != nullptr; }

bool WindowTree::isOnScreen(xcb_window_t window) const {
    if (window == XCB_WINDOW_NONE) return false;
    const auto reply = replyTo(m_connection, xcb_get_window_attributes(m_connection, window),
                               xcb_get_window_attributes_reply);
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

}  // namespace x11
