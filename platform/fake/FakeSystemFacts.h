// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/SystemFacts.h"

/// A machine as a test describes it: two processors with 2.4 GHz and 4 GB of memory if it says nothing.
class FakeSystemFacts : public SystemFacts {
  public:
    struct Machine {
        std::string systemVersion = "Debian GNU/Linux 12 (bookworm)";
        std::optional<std::string> name = "ThinkPad X220";
        std::int32_t processorClock = 2400;
        std::uint32_t processors = 2;
        std::int32_t memory = 4096;
    };

    std::string systemVersion() const override { return m_machine.systemVersion; }
    std::optional<std::string> machineName() const override { return m_machine.name; }
    std::int32_t processorClock() const override { return m_machine.processorClock; }
    std::uint32_t processors() const override { return m_machine.processors; }
    std::int32_t memory() const override { return m_machine.memory; }

    void put(const Machine& machine) { m_machine = machine; }

  private:
    Machine m_machine;
};
