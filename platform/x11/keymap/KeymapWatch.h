// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "platform/keymap/CharacterTable.h"
#include "platform/x11/keymap/DeviceMap.h"
#include "platform/x11/server/SlaveKeyboards.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// The keymap of the core keyboard, kept up with its changes, and the connection on which it is read.
///
/// The server tells of a new keymap each time that another keyboard speaks, mostly with nothing new in it;
/// the maps are compared before anything is made anew.
class KeymapWatch {
  public:
    /// Connects; nothing is read before the first refresh(), since most starts of a program play nothing.
    static Result<std::unique_ptr<KeymapWatch>> open(const std::string& display);

    /// Reads the keymap the first time, then looks whether the server has told of a change; true if the map
    /// was read, new or not. With `thorough` a round trip makes sure that everything up to now is seen. Fails
    /// with a hint where the keymap cannot be read.
    Result<bool> refresh(bool thorough);

    // Once refresh() has succeeded.
    const Keymap& keymap() const { return *m_keymap; }
    /// Where the keymap types each character.
    const CharacterTable& characters() const { return *m_characters; }
    /// The core keyboard's map.
    const DeviceMap& map() const { return m_map; }
    const XConnection& connection() const { return m_connection; }

    /// Keys whose meaning is our own: they are left out of characters(), and changes of them make nothing
    /// anew.
    void setOwnKeys(const KeycodeSet& keys);
    /// How often the keymap has become another one, those keys apart.
    std::size_t changes() const { return m_changes; }

    /// The keyboards below the core keyboard.
    std::vector<SlaveKeyboard> slaves() const;

  private:
    explicit KeymapWatch(XConnection connection);

    Result<void> read();
    bool takeNotices(bool thorough);

    XConnection m_connection;
    std::uint8_t m_firstEvent = 0;
    std::int32_t m_coreDevice = -1;
    std::size_t m_changes = 0;
    KeycodeSet m_ownKeys;
    DeviceMap m_map;
    std::vector<std::byte> m_actions;
    std::unique_ptr<Keymap> m_keymap;
    std::optional<CharacterTable> m_characters;
};

}  // namespace x11
