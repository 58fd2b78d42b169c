// SPDX-License-Identifier: MIT
#include "core/KeyCode.h"

#include <string_view>
#include <utility>

#include "core/ModifierNames.h"
#include "core/createShared.h"
#include "platform/Modifiers.h"

namespace actionpack {
namespace {

bool isUpperCaseLetter(char character) { return character >= 'A' && character <= 'Z'; }

std::uint32_t scriptModifiers(std::uint32_t modifiers, char character) {
    const bool capsLockShifts = (modifiers & modifier::capsLock) != 0 && isUpperCaseLetter(character);
    return capsLockShifts ? modifiers | modifier::shift : modifiers;
}

std::uint32_t displayModifiers(std::uint32_t modifiers, char character) {
    return isUpperCaseLetter(character) ? modifiers & ~modifier::shift : modifiers;
}

std::string joined(std::uint32_t modifiers, const char* ModifierName::*text, const char* suffix,
                   std::string_view separator) {
    std::string result;
    for (const ModifierName& name : modifierNames) {
        if ((modifiers & name.modifier) == 0) continue;
        if (!result.empty()) result += separator;
        (result += name.*text) += suffix;
    }
    return result;
}

}  // namespace

KeyCode::KeyCode(std::uint32_t keyCode, std::string keyName, char character)
    : m_keyCode(keyCode), m_keyName(std::move(keyName)), m_character(character) {}

std::string KeyCode::scriptLine() const {
    return "\tkey code (" + std::to_string(m_keyCode) + ") using {" +
           joined(scriptModifiers(modifiers(), m_character), &ModifierName::word, " down", ", ") + "}\n";
}

std::string KeyCode::displayText() const {
    const std::string symbols =
        joined(displayModifiers(modifiers(), m_character), &ModifierName::symbol, "", "+");
    return symbols.empty() ? m_keyName : "<" + symbols + "+" + m_keyName + ">";
}

}  // namespace actionpack

boost::shared_ptr<actionpack::KeyCode> createKeyCode(const std::uint32_t& keyCode, const std::string& keyName,
                                                     const char& character) {
    return createShared<actionpack::KeyCode>(keyCode, keyName, character);
}
