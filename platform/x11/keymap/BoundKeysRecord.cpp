// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/BoundKeysRecord.h"

namespace x11 {

namespace {

constexpr const char* name = "_KEYRILL_BOUND_KEYS";
/// Key code, level and symbol as three numbers.
constexpr std::size_t fields = 3;
constexpr std::uint32_t maxNumbers = fields * 4 * 256;

}  // namespace

BoundKeysRecord::BoundKeysRecord(const XConnection& connection)
    : m_connection(connection), m_atom(connection.atom(name)), m_window(connection) {}

bool BoundKeysRecord::hasOwner() const { return m_connection.ownerOf(m_atom) != XCB_WINDOW_NONE; }

void BoundKeysRecord::own() {
    xcb_set_selection_owner(m_connection, m_window.id(), m_atom, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

std::vector<BoundKey> BoundKeysRecord::read() const {
    std::vector<BoundKey> keys;
    const auto numbers = property().numbers(XCB_ATOM_CARDINAL, maxNumbers);
    for (std::size_t at = 0; at + fields <= numbers.size(); at += fields) {
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
        property().remove();
    } else {
        property().write(XCB_ATOM_CARDINAL, numbers);
    }
    m_connection.roundTrip();
}

Property BoundKeysRecord::property() const { return {m_connection, m_connection.root(), m_atom}; }

}  // namespace x11
