// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Notifications.h"
#include "platform/ScreenLock.h"

/// What this backend does not provide yet. Each call says so; nothing is pretended.
namespace pending {

class Notifications : public ::Notifications {
  public:
    void post(std::string_view /*title*/, std::string_view /*text*/) override {}
};

class ScreenLock : public ::ScreenLock {
  public:
    bool isLocked() const override { return false; }
    void observe(std::function<void(bool locked)> /*changed*/) override {}
};

}  // namespace pending
