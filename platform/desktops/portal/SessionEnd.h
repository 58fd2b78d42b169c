// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>

#include "platform/linux/BusContext.h"

/// Hears that the desktop has closed a session of one of its portals (org.freedesktop.portal.Session). Heard
/// in the default main context of the thread in which it is followed.
class SessionEnd {
  public:
    SessionEnd() = default;
    ~SessionEnd() { stop(); }
    SessionEnd(const SessionEnd&) = delete;
    SessionEnd& operator=(const SessionEnd&) = delete;

    /// In place of the session that was followed before; `session` is its object's path. stop() may be called
    /// from within.
    void follow(GDBusConnection* bus, const std::string& session, std::function<void()> closed);
    void stop();

  private:
    static void heard(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                      const char* member, GVariant* parameters, void* self);

    GObjectPointer<GDBusConnection> m_bus;
    guint m_subscription = 0;
    std::function<void()> m_closed;
};
