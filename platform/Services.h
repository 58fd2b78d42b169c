// SPDX-License-Identifier: MIT
#pragma once

class Clock;
class EventMonitor;
class HotKeys;
class KeyboardLayout;
class KeyInjector;
class Layers;
class LoginItems;
class MacroFiles;
class Notifications;
class ScreenLock;
class ScriptingService;
class SessionCheck;
class SettingsStore;
class SystemFacts;
class UpdateService;
class Workspace;

/// What the program asks of the desktop. All of it lives on the main thread and outlives the scope below.
struct Services {
    Clock& clock;
    EventMonitor& eventMonitor;
    HotKeys& hotKeys;
    KeyboardLayout& keyboardLayout;
    KeyInjector& keyInjector;
    ScriptingService& scripting;
    SettingsStore& settings;
    LoginItems& loginItems;
    Workspace& workspace;
    SystemFacts& systemFacts;
    /// Never finds anything in a build without the update check (platform/Features.h).
    UpdateService& updateService;
    MacroFiles& macroFiles;
    Notifications& notifications;
    ScreenLock& screenLock;
    SessionCheck& sessionCheck;
    Layers& layers;
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
