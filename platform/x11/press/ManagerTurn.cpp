// SPDX-License-Identifier: MIT
#include "platform/x11/press/ManagerTurn.h"

#include <algorithm>

#include "platform/x11/server/ClientMessage.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

namespace {

constexpr std::uint32_t mostHints = 1024;

}  // namespace

ManagerTurn::ManagerTurn(const XConnection& connection, xcb_window_t window)
    : m_connection(connection),
      m_window(window),
      m_supported(connection.atom("_NET_SUPPORTED")),
      m_request(connection.atom("_NET_REQUEST_FRAME_EXTENTS")),
      m_answer(connection.atom("_NET_FRAME_EXTENTS")) {}

bool ManagerTurn::ask() const {
    const auto hints =
        Property(m_connection, m_connection.root(), m_supported).numbers(XCB_ATOM_ATOM, mostHints);
    if (std::find(hints.begin(), hints.end(), m_request) == hints.end()) return false;
    Property(m_connection, m_window, m_answer).remove();
    const ClientMessage question{.window = m_window, .type = m_request};
    question.sendTo(m_connection, m_connection.root(),
                    XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    xcb_flush(m_connection);
    return true;
}

bool ManagerTurn::hasCome() const { return Property(m_connection, m_window, m_answer).exists(); }

}  // namespace x11
