// SPDX-License-Identifier: MIT
#include "platform/x11/press/BoundKeysRecord.h"

#include <span>

namespace x11 {

namespace {

constexpr const char* name = "_KEYRILL_BOUND_KEYS";
/// Key code, level and symbol as three numbers.
constexpr std::size_t fields = 3;
constexpr std::uint32_t maxNumbers = fields * 4 * 256;

}  // namespace

BoundKeysRecord::BoundKeysRecord(const XConnection& connection)
    : m_connection(connection), m_atom(connection.atom(name)), m_window(xcb_generate_id(connection)) {
    xcb_create_window(connection, 0, m_window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

bool BoundKeysRecord::hasOwner() const {
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, m_atom), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

void BoundKeysRecord::own() {
    xcb_set_selection_owner(m_connection, m_window, m_atom, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

std::vector<BoundKey> BoundKeysRecord::read() const {
    std::vector<BoundKey> keys;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_connection.root(), m_atom, XCB_ATOM_CARDINAL, 0, maxNumbers),
        nullptr));
    if (!reply || reply->format != 32) return keys;
    const auto count =
        static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / sizeof(std::uint32_t);
    const std::span numbers(static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())), count);
    for (std::size_t at = 0; at + fields <= count; at += fields) {
        if (numbers[at] > 0xFF || numbers[at + 1] > 0xFF) continue;
        keys.push_back({.keycode = static_cast<std::uint8_t>(numbers[at]),
                        .level = static_cast<std::uint8_t>(numbers[at + 1]),
                        .symbol = numbers[at + 2]});
    }
    return keys;
}

void BoundKeysRecord::write(const std::vector<BoundKey>& keys) const {
    std::vector<std::uint32_t> numbers;
    for (const BoundKey& key : keys) {
        numbers.insert(numbers.end(), {key.keycode, key.level, key.symbol});
    }
    if (numbers.empty()) {
        xcb_delete_property(m_connection, m_connection.root(), m_atom);
    } else {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_connection.root(), m_atom,
                            XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(numbers.size()),
                            numbers.data());
    }
    m_connection.roundTrip();
}

}  // namespace x11
