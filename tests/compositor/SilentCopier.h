// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

/// A program that has copied a text, and falls silent when it has given the first bytes of it to whoever
/// pastes.
class SilentCopier {
  public:
    /// Has the clipboard when constructed. `socket` is the compositor's.
    SilentCopier(const std::string& socket, std::string firstBytes);
    ~SilentCopier();
    SilentCopier(const SilentCopier&) = delete;
    SilentCopier& operator=(const SilentCopier&) = delete;

  private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};
