// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>

#include "platform/KeyboardLayout.h"

/// The names of a US keyboard.
class FakeKeyboardLayout : public KeyboardLayout {
  public:
    std::string keyName(std::uint32_t keyCode) const override;
    Result<std::string> character(std::uint32_t keyCode, bool shift, bool option) const override;
    std::string typed(std::uint32_t keyCode, bool shift) const override;

    /// How often a key's name was asked for.
    int lookups() const { return m_lookups; }
    /// The key is called so from now on.
    void renameKey(std::uint32_t keyCode, const std::string& name) { m_renamed[keyCode] = name; }
    /// The next character() answers the error.
    void failNextCall(const Error& error) { m_nextError = error; }

  private:
    mutable int m_lookups = 0;
    mutable std::optional<Error> m_nextError;
    std::map<std::uint32_t, std::string> m_renamed;
};
