// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/DeviceMap.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>

#include "platform/x11/server/XConnection.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint16_t typesAndSymbols = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;
constexpr std::uint16_t actionParts = XCB_XKB_MAP_PART_KEY_ACTIONS | XCB_XKB_MAP_PART_MODIFIER_MAP |
                                      XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;

/// Takes one record after the other out of a reply; short data fails every later take.
class Reader {
  public:
    explicit Reader(std::span<const std::byte> data) : m_data(data) {}

    template <typename Record>
    Record take() {
        Record record{};
        takeBytes(&record, sizeof record);
        return record;
    }
    void takeBytes(void* target, std::size_t size) {
        if (size > m_data.size()) {
            m_isShort = true;
            m_data = {};
            return;
        }
        if (size > 0) std::memcpy(target, m_data.data(), size);
        m_data = m_data.subspan(size);
    }
    void skip(std::size_t size) {
        if (size > m_data.size()) m_isShort = true;
        m_data = m_data.subspan(std::min(size, m_data.size()));
    }
    std::size_t size() const { return m_data.size(); }
    bool isShort() const { return m_isShort; }

  private:
    std::span<const std::byte> m_data;
    bool m_isShort = false;
};

/// All that follows the fixed part of a reply.
template <typename Reply>
Reader bodyOf(const Reply& reply) {
    const std::size_t size = 32 + std::size_t{reply.length} * 4;
    return Reader(
        std::span(reinterpret_cast<const std::byte*>(&reply), size).subspan(std::min(size, sizeof(Reply))));
}

/// Some parts of a device's map, each of them whole.
XReply<xcb_xkb_get_map_reply_t> wholeParts(xcb_connection_t* connection, std::uint16_t device,
                                           std::uint16_t parts) {
    const auto cookie =
        xcb_xkb_get_map(connection, device, parts, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    return replyTo(connection, cookie, xcb_xkb_get_map_reply);
}

KeyType takeType(Reader& reader) {
    const auto header = reader.take<xcb_xkb_key_type_t>();
    KeyType type{.modifiers = header.mods_mask, .levels = header.numLevels, .entries = {}};
    for (int entry = 0; entry < header.nMapEntries; ++entry) {
        const auto row = reader.take<xcb_xkb_kt_map_entry_t>();
        if (row.active != 0) type.entries.push_back({row.mods_mask, row.level});
    }
    if (header.hasPreserve != 0) reader.skip(sizeof(xcb_xkb_mod_def_t) * header.nMapEntries);
    return type;
}

KeySymbols takeKey(Reader& reader) {
    const auto header = reader.take<xcb_xkb_key_sym_map_t>();
    KeySymbols key{.types = {}, .groupInfo = header.groupInfo, .width = header.width, .symbols = {}};
    std::copy(std::begin(header.kt_index), std::end(header.kt_index), key.types.begin());
    key.symbols.resize(header.nSyms);
    reader.takeBytes(key.symbols.data(), key.symbols.size() * sizeof(std::uint32_t));
    return key;
}

void append(std::vector<std::byte>& bytes, const void* data, std::size_t size) {
    const auto* first = static_cast<const std::byte*>(data);
    bytes.insert(bytes.end(), first, first + size);
}

void appendKey(std::vector<std::byte>& bytes, const KeySymbols& key) {
    xcb_xkb_key_sym_map_t header{};
    std::copy(key.types.begin(), key.types.end(), std::begin(header.kt_index));
    header.groupInfo = key.groupInfo;
    header.width = key.width;
    header.nSyms = static_cast<std::uint16_t>(key.symbols.size());
    append(bytes, &header, sizeof header);
    append(bytes, key.symbols.data(), key.symbols.size() * sizeof(std::uint32_t));
}

}  // namespace

std::optional<DeviceMap> readDeviceMap(xcb_connection_t* connection, std::uint16_t device) {
    const auto reply = wholeParts(connection, device, typesAndSymbols);
    if (!reply) return std::nullopt;
    DeviceMap map;
    map.firstKeycode = reply->minKeyCode;
    map.lastKeycode = reply->maxKeyCode;
    Reader reader = bodyOf(*reply);
    for (int type = 0; type < reply->nTypes; ++type) map.types.push_back(takeType(reader));
    for (unsigned key = 0; key < reply->nKeySyms; ++key) {
        map.keys[(reply->firstKeySym + key) & 0xFFU] = takeKey(reader);
    }
    return reader.isShort() ? std::nullopt : std::optional(std::move(map));
}

bool writeKeySymbols(xcb_connection_t* connection, std::uint16_t device, const DeviceMap& map,
                     std::uint8_t first, std::uint8_t last) {
    std::vector<std::byte> bytes;
    std::size_t total = 0;
    for (unsigned keycode = first; keycode <= last; ++keycode) {
        appendKey(bytes, map.keys[keycode]);
        total += map.keys[keycode].symbols.size();
    }
    const auto cookie = xcb_xkb_set_map_checked(
        connection, device, XCB_XKB_MAP_PART_KEY_SYMS, 0, map.firstKeycode, map.lastKeycode, 0, 0, first,
        static_cast<std::uint8_t>(last - first + 1), static_cast<std::uint16_t>(total), 0, 0, 0, 0, 0, 0, 0,
        0, 0, 0, 0, 0, 0, 0, 0, 0, bytes.data());
    return refusalOf(connection, cookie) == nullptr;
}

std::vector<std::byte> readActions(xcb_connection_t* connection) {
    const auto reply = wholeParts(connection, XCB_XKB_ID_USE_CORE_KBD, actionParts);
    if (!reply) return {};
    Reader reader = bodyOf(*reply);
    std::vector<std::byte> bytes(reader.size());
    reader.takeBytes(bytes.data(), bytes.size());
    return bytes;
}

std::optional<std::uint8_t> fourLevelType(const DeviceMap& map, const ModifierMasks& masks) {
    if (masks.thirdLevel == 0) return std::nullopt;
    const xkb_mod_mask_t both = masks.shift | masks.thirdLevel;
    const auto fits = [&](const KeyType& type) {
        if (type.levels != 4 || type.modifiers != both) return false;
        std::array<bool, 4> selected = {true, false, false, false};
        for (const auto& entry : type.entries) {
            if (entry.modifiers == masks.shift) selected[1] = entry.level == 1;
            if (entry.modifiers == masks.thirdLevel) selected[2] = entry.level == 2;
            if (entry.modifiers == both) selected[3] = entry.level == 3;
        }
        return std::all_of(selected.begin(), selected.end(), [](bool is) { return is; });
    };
    const auto place = std::find_if(map.types.begin(), map.types.end(), fits);
    if (place == map.types.end()) return std::nullopt;
    return static_cast<std::uint8_t>(place - map.types.begin());
}

}  // namespace x11
