// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Windows.h"

/// For programs that show no windows.
class NoWindows final : public Windows {
  public:
    void refuseFocus(const OwnWindow& /*window*/) override {}
    void activate(const OwnWindow& /*window*/, std::uint32_t /*userTime*/) override {}
    void awaitFocusElsewhere(const OwnWindow& /*hidden*/) override {}
};
