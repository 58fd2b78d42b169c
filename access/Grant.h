// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "access/InputDevices.h"
#include "access/LoginSessions.h"
#include "access/Strokes.h"

namespace keyaccess {

/// What one caller has been given. Its end takes all of it back.
class Grant {
  public:
    /// `devices` outlives this.
    Grant(InputDevices& devices, Identity who) : m_devices(devices), m_who(std::move(who)) {}
    ~Grant();
    Grant(const Grant&) = delete;
    Grant& operator=(const Grant&) = delete;

    const Identity& who() const { return m_who; }
    bool isEmpty() const { return !m_mayRead && !m_typing; }

    bool mayRead() const { return m_mayRead; }
    /// Opens the keyboards that the caller does not have yet: their names and descriptors, which stay here.
    std::vector<std::pair<std::string, int>> openKeyboards();
    void closeKeyboards();

    bool mayType() const { return static_cast<bool>(m_typing); }
    /// False where no keyboard can be made.
    bool openTyping();
    /// False if one may not be typed, or the system refuses; what stands before it has been.
    bool type(const std::vector<Stroke>& strokes);
    void closeTyping();

  private:
    InputDevices& m_devices;
    Identity m_who;
    bool m_mayRead = false;
    /// The same open files as the caller's, to revoke them by; never read.
    std::map<std::string, Descriptor> m_keyboards;
    Descriptor m_typing;
    DownKeys m_down;
};

}  // namespace keyaccess
