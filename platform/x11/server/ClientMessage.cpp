// SPDX-License-Identifier: MIT
#include "platform/x11/server/ClientMessage.h"

#include <algorithm>

namespace x11 {

void ClientMessage::sendTo(xcb_connection_t* connection, xcb_window_t receiver, std::uint32_t events) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::copy(numbers.begin(), numbers.end(), std::begin(message.data.data32));
    xcb_send_event(connection, 0, receiver, events, reinterpret_cast<const char*>(&message));
}

}  // namespace x11
