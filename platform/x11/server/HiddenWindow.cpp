// SPDX-License-Identifier: MIT
#include "platform/x11/server/HiddenWindow.h"

#include <array>

#include "platform/x11/server/XConnection.h"

namespace x11 {

HiddenWindow::HiddenWindow(const XConnection& connection, std::uint32_t events)
    : m_connection(connection), m_id(xcb_generate_id(connection)) {
    // No window manager is to take it for one of its own.
    const std::array<std::uint32_t, 2> values{1, events};
    xcb_create_window(m_connection, 0, m_id, connection.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
}

HiddenWindow::~HiddenWindow() {
    if (m_id == XCB_WINDOW_NONE) return;
    xcb_destroy_window(m_connection, m_id);
    xcb_flush(m_connection);
}

}  // namespace x11
