// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/EventMonitor.h"

/// The monitor where the desktop shows no foreign key events.
class NoEventMonitor final : public EventMonitor {
  public:
    explicit NoEventMonitor(Error why) : m_why(std::move(why)) {}

    Result<void> showsKeys() const override { return m_why; }
    Result<void> install(Handler /*handler*/) override { return m_why; }
    void setWithheld(bool /*withheld*/) override {}
    void setKeepsOwnStrokes(bool /*keeps*/) override {}
    void setRecording(bool /*recording*/) override {}
    void setShowsModifierKeys(bool /*shows*/) override {}
    void observeHold(std::function<void(bool)> /*changed*/) override {}

  private:
    Error m_why;
};
