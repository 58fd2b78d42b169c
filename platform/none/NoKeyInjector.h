// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/KeyInjector.h"

/// The injector where the desktop lets no keys be pressed.
class NoKeyInjector final : public KeyInjector {
  public:
    explicit NoKeyInjector(Error why) : m_why(std::move(why)) {}

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& /*plan*/) override { return m_why; }
    void startPlayback() override {}
    bool isCancelled() override { return false; }

  private:
    Error m_why;
};
