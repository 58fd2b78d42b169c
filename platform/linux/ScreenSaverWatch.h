// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "platform/linux/BusConnection.h"

/// Whether a screen saver covers the screen, by what savers say on the session bus: the signal ActiveChanged
/// of org.freedesktop.ScreenSaver and of its namesakes. A saver that ends covers nothing any more.
class ScreenSaverWatch {
  public:
    ScreenSaverWatch(BusLoop& loop, const std::string& sessionBus);
    ~ScreenSaverWatch();
    ScreenSaverWatch(const ScreenSaverWatch&) = delete;
    ScreenSaverWatch& operator=(const ScreenSaverWatch&) = delete;

    bool isActive() const { return !m_active.empty(); }

  private:
    void listen();
    void setActive(const std::string& sender, bool active);
    void forgetAll();
    static void onVanished(GDBusConnection* connection, const char* name, void* self);

    /// The savers that are active, by unique name, with the watch for their end.
    std::map<std::string, guint> m_active;
    BusConnection m_connection;
};
