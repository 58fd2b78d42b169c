// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "support/Child.h"

/// A terminal that has the focus and writes every byte that is typed into it to a file.
class Terminal {
  public:
    /// Returns when it is ready to be typed into.
    explicit Terminal(const std::string& display);

    /// What has been typed so far, UTF-8; Return is a line feed.
    std::string typed() const { return contentOf(m_folder.file("typed")); }
    /// Waits until that many bytes have come, or a while without; what has been typed by then.
    std::string typed(std::size_t bytes) const;

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_program;
};
