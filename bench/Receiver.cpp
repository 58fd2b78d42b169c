// SPDX-License-Identifier: MIT
#include "Receiver.h"

#include <poll.h>

#include <stdexcept>
#include <string_view>

#include "display/Connection.h"
#include "platform/x11/server/Property.h"
#include "support/Child.h"

Receiver::Receiver(const std::string& display) : m_connection(connectTo(display)) {
    m_window = xcb_generate_id(m_connection);
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_connection.root(), 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    // Some who type ask first what they type into.
    x11::Property(m_connection, m_window, XCB_ATOM_WM_CLASS)
        .write(XCB_ATOM_STRING, std::string_view("receiver\0Receiver\0", 18));
    x11::Property(m_connection, m_window, XCB_ATOM_WM_NAME).write(XCB_ATOM_STRING, "Receiver");
    xcb_map_window(m_connection, m_window);
    takeFocus();
    m_reader = std::thread([this] { read(); });
}

Receiver::~Receiver() {
    m_ends = true;
    m_reader.join();
}

void Receiver::takeFocus() const {
    const bool focused = eventually([this] {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, m_window, XCB_CURRENT_TIME);
        const x11::XReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        return reply && reply->focus == m_window;
    });
    if (!focused) throw std::runtime_error("the window got no focus");
}

void Receiver::read() {
    constexpr int longestDeafness = 20;
    while (!m_ends) {
        pollfd descriptor{m_connection.fileDescriptor(), POLLIN, 0};
        poll(&descriptor, 1, longestDeafness);
        const Clock::time_point now = Clock::now();
        const std::scoped_lock lock(m_mutex);
        while (const x11::Event event = m_connection.nextEvent()) {
            if (event.is(x11::keyPress))
                m_presses.push_back({event.body<xcb_key_press_event_t>().detail, now});
        }
    }
}

std::vector<Receiver::Clock::time_point> Receiver::presses(std::uint8_t keycode) const {
    const std::scoped_lock lock(m_mutex);
    std::vector<Clock::time_point> times;
    for (const Press& press : m_presses) {
        if (press.keycode == keycode) times.push_back(press.at);
    }
    return times;
}

void Receiver::clear() {
    const std::scoped_lock lock(m_mutex);
    m_presses.clear();
}
