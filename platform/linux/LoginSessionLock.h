// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/linux/BusConnection.h"

/// What the login manager says of the screen's lock (org.freedesktop.login1 on the system bus): the session
/// is asked to lock and to unlock, and its locker may tell by LockedHint that it has.
///
/// unlocked -> locked: the signal Lock, LockedHint becomes true
/// locked -> unlocked: the signal Unlock, LockedHint becomes false, the bus ends
class LoginSessionLock {
  public:
    /// `session` is the session's identifier; "auto" for the caller's own.
    LoginSessionLock(BusLoop& loop, const std::string& systemBus, std::string session);

    bool isLocked() const { return m_isLocked; }

  private:
    void findSession();
    void watch(const std::string& path);
    void takeProperties(GVariant* properties);

    std::string m_session;
    bool m_isLocked = false;
    BusConnection m_connection;
};
