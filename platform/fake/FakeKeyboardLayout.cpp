// SPDX-License-Identifier: MIT
#include "platform/fake/FakeKeyboardLayout.h"

#include <cctype>
#include <utility>

#include "platform/fake/FakeUsKeys.h"

std::string FakeKeyboardLayout::keyName(std::uint32_t keyCode) const {
    ++m_lookups;
    const auto renamed = m_renamed.find(keyCode);
    return renamed != m_renamed.end() ? renamed->second : fakeus::keyName(keyCode);
}

Result<std::string> FakeKeyboardLayout::character(std::uint32_t keyCode, bool shift, bool /*option*/) const {
    if (m_nextError) return *std::exchange(m_nextError, std::nullopt);
    const auto character = static_cast<unsigned char>(fakeus::character(keyCode, shift));
    if (character == 0) return Error{"The key " + fakeus::keyName(keyCode) + " types nothing.", ""};
    return std::string(1, static_cast<char>(std::toupper(character)));
}

std::string FakeKeyboardLayout::typed(std::uint32_t keyCode, bool shift) const {
    const char character = fakeus::character(keyCode, shift);
    return character >= ' ' && character < 0x7F ? std::string(1, character) : std::string();
}
