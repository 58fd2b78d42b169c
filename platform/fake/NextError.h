// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "platform/Result.h"

/// An error that a test has put in the way of a fake's next call.
class NextError {
  public:
    void set(Error error) { m_error = std::move(error); }
    std::optional<Error> take() { return std::exchange(m_error, std::nullopt); }

  private:
    std::optional<Error> m_error;
};
