// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SystemFacts.h"

/// Facts from the files in which the system tells them: os-release, DMI or the device tree, cpufreq, /proc
/// and the list of present processors.
class MachineFacts : public SystemFacts {
  public:
    /// `root` stands before each path; without a slash at its end.
    explicit MachineFacts(std::string root = {}) : m_root(std::move(root)) {}

    /// PRETTY_NAME of os-release, else NAME.
    std::string systemVersion() const override;
    /// What makers leave in place of a name, "System Product Name" and its like, is none.
    std::optional<std::string> machineName() const override;
    /// By cpufreq, else as /proc/cpuinfo has it at this moment.
    std::int32_t processorClock() const override;
    std::uint32_t processors() const override;
    std::int32_t memory() const override;

  private:
    /// Empty if there is none.
    std::string content(const std::string& path) const;

    std::string m_root;
};
