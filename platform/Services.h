// SPDX-License-Identifier: MIT
#pragma once

class Clock;
class EventMonitor;
class HotKeys;
class KeyboardLayout;
class KeyInjector;
class ScriptingService;
class SettingsStore;

/// What the program asks of the desktop. All of it lives on the main thread and outlives the scope below.
struct Services {
    Clock& clock;
    EventMonitor& eventMonitor;
    HotKeys& hotKeys;
    KeyboardLayout& keyboardLayout;
    KeyInjector& keyInjector;
    ScriptingService& scripting;
    SettingsStore& settings;
};

/// Installs the services for the life of the scope. Scopes nest; the inner one counts.
class ServicesScope {
  public:
    explicit ServicesScope(Services& services);
    ~ServicesScope();
    ServicesScope(const ServicesScope&) = delete;
    ServicesScope& operator=(const ServicesScope&) = delete;

  private:
    Services* m_previous;
};

/// The installed services; ends the process with a message while none is installed.
///
/// Why: some functions have signatures that leave no room for an argument. Only these call it; every class
/// gets references.
Services& services();
