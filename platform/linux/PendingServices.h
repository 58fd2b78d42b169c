// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"
#include "platform/Notifications.h"
#include "platform/ScreenLock.h"
#include "platform/SystemFacts.h"
#include "platform/UpdateService.h"
#include "platform/Workspace.h"

/// What this backend does not provide yet. Each call says so; nothing is pretended.
namespace pending {

inline Error error() { return {"This build cannot do that yet.", ""}; }

class LoginItems : public ::LoginItems {
  public:
    State state() const override { return State::off; }
    Result<> install(bool /*enable*/) override { return error(); }
};

class Workspace : public ::Workspace {
  public:
    Result<> openUrl(std::string_view /*url*/) override { return error(); }
    Result<> openFile(std::string_view /*path*/) override { return error(); }
};

class SystemFacts : public ::SystemFacts {
  public:
    std::string systemVersion() const override { return "Linux"; }
    std::optional<std::string> machineName() const override { return std::nullopt; }
    std::int32_t processorClock() const override { return 0; }
    std::uint32_t processors() const override { return 0; }
    std::int32_t memory() const override { return 0; }
};

class UpdateService : public ::UpdateService {
  public:
    bool isNewerThan(std::string_view /*runningVersion*/) override { return false; }
};

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
