// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/Descriptor.h"
#include "platform/Result.h"

class EventSource;

namespace evdev {

/// A keyboard that is open for reading.
struct OpenedDevice {
    Descriptor descriptor;
    /// Of its device file: "event3".
    std::string name;
};

/// Who opens keyboards: they show passwords too, so that desktops keep them from ordinary programs.
class DeviceOpener {
  public:
    /// Whether the user may be asked for his permission, which he answers when he likes.
    enum class Question { allowed, avoided };
    using Opened = std::function<void(Result<std::vector<OpenedDevice>>)>;

    virtual ~DeviceOpener() = default;

    /// Opens all keyboards but those of these names, which are open. `opened` is told at once or later, from
    /// the source's dispatch(), and once; no keyboard is no failure. An open() before the answer takes its
    /// place.
    virtual void open(const std::set<std::string>& held, Question question, Opened opened) = 0;

    /// Who is told, from the source's dispatch(), that what has been opened must not be read any more: nobody
    /// is left who could take it back. At most one.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): who can lose them keeps it.
    virtual void whenLost(std::function<void(const Error& why)> /*lost*/) {}

    /// Gives the permission back. An answer on its way is told to nobody.
    virtual void close() = 0;

    /// What brings late answers; null if there are none.
    virtual EventSource* source() { return nullptr; }
};

}  // namespace evdev
