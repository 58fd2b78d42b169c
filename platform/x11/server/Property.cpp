// SPDX-License-Identifier: MIT
#include "platform/x11/server/Property.h"

namespace x11 {

namespace {

constexpr std::uint8_t formatOfNumbers = 32;
constexpr std::uint8_t formatOfText = 8;
/// Lengths are asked for in units of so many bytes.
constexpr std::uint32_t unit = 4;

std::string bytesOf(const xcb_get_property_reply_t& reply) {
    return {static_cast<const char*>(xcb_get_property_value(&reply)),
            static_cast<std::size_t>(xcb_get_property_value_length(&reply))};
}

}  // namespace

XReply<xcb_get_property_reply_t> Property::read(bool isTaken, xcb_atom_t type, std::uint32_t units) const {
    return replyTo(m_connection,
                   xcb_get_property(m_connection, isTaken ? 1 : 0, m_window, m_name, type, 0, units),
                   xcb_get_property_reply);
}

bool Property::exists() const {
    const auto reply = read(false, XCB_GET_PROPERTY_TYPE_ANY, 0);
    return reply && reply->type != XCB_ATOM_NONE;
}

std::vector<std::uint32_t> Property::numbers(xcb_atom_t type, std::uint32_t most) const {
    const auto reply = read(false, type, most);
    if (!reply || reply->format != formatOfNumbers) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::uint32_t Property::number(xcb_atom_t type) const {
    const std::vector<std::uint32_t> first = numbers(type, 1);
    return first.empty() ? 0 : first.front();
}

std::string Property::text(xcb_atom_t type, std::uint32_t most) const {
    const auto reply = read(false, type, most / unit);
    return reply && reply->format == formatOfText ? bytesOf(*reply) : std::string();
}

Property::Content Property::take(std::uint32_t most) const {
    const auto reply = read(true, XCB_GET_PROPERTY_TYPE_ANY, most / unit);
    if (!reply || reply->type == XCB_ATOM_NONE) return {};
    return {reply->type, bytesOf(*reply)};
}

void Property::write(xcb_atom_t type, std::span<const std::uint32_t> numbers) const {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_name, type, formatOfNumbers,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void Property::write(xcb_atom_t type, std::string_view text) const {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, m_name, type, formatOfText,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

void Property::append(xcb_atom_t type, std::span<const std::uint32_t> numbers) const {
    xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_window, m_name, type, formatOfNumbers,
                        static_cast<std::uint32_t>(numbers.size()), numbers.data());
}

void Property::remove() const { xcb_delete_property(m_connection, m_window, m_name); }

}  // namespace x11
