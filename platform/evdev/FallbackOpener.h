// SPDX-License-Identifier: MIT
#pragma once

#include "platform/evdev/DeviceOpener.h"

namespace evdev {

/// Asks the second where the first, which answers at once, fails or sees no keyboard, as in a container; and
/// only him until it is closed.
class FallbackOpener final : public DeviceOpener {
  public:
    /// Both outlive this.
    FallbackOpener(DeviceOpener& first, DeviceOpener& second) : m_first(first), m_second(second) {}

    void open(const std::set<std::string>& held, Question question, Opened opened) override;
    void whenLost(std::function<void(const Error& why)> lost) override;
    void close() override;
    EventSource* source() override { return m_second.source(); }

  private:
    DeviceOpener& m_first;
    DeviceOpener& m_second;
    /// The one that has opened something or was asked last.
    DeviceOpener* m_chosen = nullptr;
};

}  // namespace evdev
