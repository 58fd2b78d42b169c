// SPDX-License-Identifier: MIT
#pragma once

#include "platform/EventMonitor.h"
#include "platform/wayland/WaylandHotKeys.h"

namespace wayland {

/// No key of other programs is shown in a Wayland session; hot keys are withheld all the same.
class WaylandEventMonitor final : public EventMonitor {
  public:
    /// `hotKeys` is null where there are none, and outlives this.
    WaylandEventMonitor(Error why, WaylandHotKeys* hotKeys) : m_why(std::move(why)), m_hotKeys(hotKeys) {}

    Result<void> showsKeys() const override { return m_why; }
    Result<void> install(Handler /*handler*/) override { return m_why; }
    void setWithheld(bool withheld) override {
        if (m_hotKeys != nullptr) m_hotKeys->setWithheld(withheld);
    }
    void setKeepsOwnStrokes(bool /*keeps*/) override {}
    void setRecording(bool /*recording*/) override {}
    void observeHold(std::function<void(bool)> /*changed*/) override {}

  private:
    Error m_why;
    WaylandHotKeys* m_hotKeys;
};

}  // namespace wayland
