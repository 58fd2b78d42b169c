// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The machine in the words of a bug report. Asked anew at each call; never a serial number or a name that
/// the user gave.
class SystemFacts {
  public:
    virtual ~SystemFacts() = default;

    /// The operating system's name and version, "Debian GNU/Linux 12 (bookworm)"; "Linux" if it has none.
    virtual std::string systemVersion() const = 0;

    /// The machine's model; empty if it is not known.
    virtual std::optional<std::string> machineName() const = 0;

    /// The processors' clock in MHz, the fastest one's if they differ; 0 if it is not known.
    virtual std::int32_t processorClock() const = 0;

    /// How many processors there are, whether this process may use them or not; 0 if it is not known.
    virtual std::uint32_t processors() const = 0;

    /// The physical memory in MB of 1,048,576 bytes; 0 if it is not known.
    virtual std::int32_t memory() const = 0;
};
