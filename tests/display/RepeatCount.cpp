// SPDX-License-Identifier: MIT
#include "display/RepeatCount.h"

#include <xcb/record.h>
#include <xcb/xcbext.h>

#include <cstddef>
#include <span>

#include "display/Connection.h"

RepeatCount::RepeatCount(const std::string& display, std::uint8_t keycode)
    : m_control(connectTo(display)),
      m_data(connectTo(display)),
      m_keycode(keycode),
      m_context(xcb_generate_id(m_control)) {
    const xcb_record_client_spec_t everybody = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_range_t range{};
    range.device_events = {XCB_KEY_PRESS, XCB_KEY_PRESS};
    xcb_record_create_context(m_control, m_context, 0, 1, 1, &everybody, &range);
    m_control.roundTrip();
    m_sequence = xcb_record_enable_context(m_data, m_context).sequence;
    xcb_flush(m_data);
}

RepeatCount::~RepeatCount() {
    xcb_record_free_context(m_control, m_context);
    m_control.roundTrip();
}

int RepeatCount::presses() {
    m_control.roundTrip();
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    while (xcb_poll_for_reply(m_data, m_sequence, &reply, &error) != 0 && reply != nullptr) {
        const x11::XReply<xcb_record_enable_context_reply_t> record(
            static_cast<xcb_record_enable_context_reply_t*>(reply));
        if (record->category != 0) continue;
        const std::span<const std::uint8_t> data(
            xcb_record_enable_context_data(record.get()),
            static_cast<std::size_t>(xcb_record_enable_context_data_length(record.get())));
        for (std::size_t event = 0; event + 32 <= data.size(); event += 32) {
            if (data[event + 1] == m_keycode) ++m_presses;
        }
    }
    return m_presses;
}
