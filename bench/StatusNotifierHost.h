// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <chrono>
#include <string>

/// The smallest panel of the StatusNotifierItem standard: the watcher and a host in one, which takes the
/// first item that registers itself, asks it how it looks as panels do, and tells when it knows.
///
/// Why not a panel of people: what it draws, and when, would be measured along with the program. No toolkit
/// either, since libraries that this process has in use cannot be cold for another one.
class StatusNotifierHost {
  public:
    /// At a session bus; throws where it cannot be reached or has a watcher already.
    explicit StatusNotifierHost(const std::string& busAddress);
    ~StatusNotifierHost();
    StatusNotifierHost(const StatusNotifierHost&) = delete;
    StatusNotifierHost& operator=(const StatusNotifierHost&) = delete;

    /// Serves until an item has told the name or the pixels of its icon; false after `deadline`.
    bool waitForIcon(std::chrono::milliseconds deadline);

  private:
    static void call(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                     const char* method, GVariant* arguments, GDBusMethodInvocation* invocation, void* self);
    static GVariant* property(GDBusConnection* bus, const char* sender, const char* path,
                              const char* interface, const char* name, GError** error, void* self);
    static void looksKnown(GObject* bus, GAsyncResult* result, void* self);

    void exportWatcher();
    void takeName();
    void ask();

    GMainContext* m_context;
    GDBusConnection* m_bus = nullptr;
    guint m_object = 0;
    /// Where the item is; empty before it has come.
    std::string m_owner;
    std::string m_path;
    bool m_isAsked = false;
    bool m_isShown = false;
};
