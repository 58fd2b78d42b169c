// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <string>

#include "core/Action.h"

namespace actionpack {

/// A key press.
///
/// The script and the display text treat Shift and Caps Lock by different rules, on purpose. In the script
/// Shift is always written, and Caps Lock counts as Shift where it made an upper-case letter. In the display
/// text Caps Lock never shows, and Shift does not where the letter itself shows it.
class KeyCode : public Action {
  public:
    /// `keyCode`: see platform/KeyCodes.h; any 32-bit value. `keyName`: what the display text shows, UTF-8.
    /// `character`: what the press typed; it matters only whether that is A to Z in ASCII.
    KeyCode(std::uint32_t keyCode, std::string keyName, char character);

    /// "\tkey code (1) using {command down, shift down}\n"; the braces stand also around no word.
    std::string scriptLine() const override;

    /// "<⌘+s>", or the name alone where no modifier shows.
    std::string displayText() const override;

  private:
    std::uint32_t m_keyCode;
    std::string m_keyName;
    char m_character;
};

}  // namespace actionpack

/// A key press without modifiers; set them right afterwards. Throws as createShared does.
boost::shared_ptr<actionpack::KeyCode> createKeyCode(const std::uint32_t& keyCode, const std::string& keyName,
                                                     const char& character);
