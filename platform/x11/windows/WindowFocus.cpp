// SPDX-License-Identifier: MIT
#include "platform/x11/windows/WindowFocus.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/x11/server/ClientMessage.h"
#include "platform/x11/server/Property.h"

namespace x11 {

WindowFocus::WindowFocus(const XConnection& connection)
    : m_connection(connection), m_tree(connection), m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW")) {}

bool WindowFocus::isIn(xcb_window_t window) const {
    const std::vector<xcb_window_t> line = m_tree.lineOf(m_tree.focus());
    return std::find(line.begin(), line.end(), window) != line.end();
}

xcb_window_t WindowFocus::activeWindow() const {
    return Property(m_connection, m_connection.root(), m_activeWindow).number(XCB_ATOM_WINDOW);
}

void WindowFocus::date(xcb_window_t window, std::uint32_t time) const {
    const auto [userTime, separateWindow] =
        m_connection.atoms(std::array{"_NET_WM_USER_TIME", "_NET_WM_USER_TIME_WINDOW"});
    const xcb_window_t separate = Property(m_connection, window, separateWindow).number(XCB_ATOM_WINDOW);
    const xcb_window_t dated = separate != XCB_WINDOW_NONE ? separate : window;
    Property(m_connection, dated, userTime).write(XCB_ATOM_CARDINAL, std::span(&time, 1));
}

void WindowFocus::request(xcb_window_t window, Source source, std::uint32_t time) const {
    const ClientMessage message{window, m_activeWindow, {static_cast<std::uint32_t>(source), time}};
    message.sendTo(m_connection, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
}

}  // namespace x11
