// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/HotKeys.h"

/// The hot keys where the desktop lets nobody have any: each request is refused.
class NoHotKeys final : public HotKeys {
  public:
    explicit NoHotKeys(Error why) : m_why(std::move(why)) {}

    void install(Handler /*pressed*/, Handler /*released*/) override {}
    void observe(Observer observer) override { m_observer = std::move(observer); }
    void request(const HotKeyRequest& request) override {
        if (m_observer) m_observer(request.id, state(request.id));
    }
    void withdraw(HotKeyId /*id*/) override {}
    HotKeyState state(HotKeyId /*id*/) const override { return {HotKeyStatus::refused, m_why}; }
    std::uint32_t lastPressTime() const override { return 0; }

  private:
    Error m_why;
    Observer m_observer;
};
