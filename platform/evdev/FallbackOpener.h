// SPDX-License-Identifier: MIT
#pragma once

#include "platform/evdev/DeviceOpener.h"

namespace evdev {

/// Asks the second where the first, which answers at once, fails; and only him until it is closed.
class FallbackOpener final : public DeviceOpener {
  public:
    /// Both outlive this.
    FallbackOpener(DeviceOpener& first, DeviceOpener& second) : m_first(first), m_second(second) {}

    void open(const std::set<std::string>& held, Question question, Opened opened) override;
    void close() override;
    EventSource* source() override { return m_second.source(); }

  private:
    DeviceOpener& m_first;
    DeviceOpener& m_second;
    bool m_isSecond = false;
};

}  // namespace evdev
