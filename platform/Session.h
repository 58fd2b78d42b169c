// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Result.h"

class Clock;
class DockingTray;
class EventMonitor;
class EventSource;
class HotKeys;
class KeyboardLayout;
class KeyInjector;
class Layers;
class ScriptDesktop;
class SessionCheck;
class Windows;

/// What is asked of the desktop and answered otherwise in each kind of session. They live on one thread, as
/// long as their session.
struct SessionServices {
    EventMonitor& eventMonitor;
    HotKeys& hotKeys;
    KeyboardLayout& keyboardLayout;
    KeyInjector& keyInjector;
    ScriptDesktop& scriptDesktop;
    SessionCheck& sessionCheck;
    Windows& windows;
    DockingTray& dockingTray;
    Layers& layers;
};

/// What a program wants of its session.
enum class SessionUse {
    /// All of it. Where keys are neither shown nor taken, the services that have to do with keys answer with
    /// the error that says why, so that the user can be told in a window.
    desktop,
    /// To play scripts and end; fails where no keys can be pressed. There are neither windows of ours nor a
    /// tray. What a script has put into the clipboard outlives the process.
    scripts,
    /// To tell what works, and end: no key can be pressed, and hot keys are looked up, as far as the desktop
    /// tells who has them without giving them. Grabs of an X server are taken for a moment.
    check,
};

/// The desktop session that the process was started in.
class Session {
  public:
    virtual ~Session() = default;

    virtual const SessionServices& sessionServices() = 0;

    /// What the event loop has to serve, in any order; they live as long as the session.
    virtual std::vector<EventSource*> eventSources() = 0;

    /// Ends the run that lasts, and all later ones before their first stroke: the process is about to end.
    /// Async-signal-safe, so that handlers of SIGTERM, SIGINT and SIGHUP may call it; they must not end the
    /// process themselves, since what is down is released as the run unwinds.
    virtual void interrupt() noexcept = 0;

    /// Stops the process as SIGTSTP asks, whose handler may call it: at once, or where a run holds keys and
    /// locks as soon as it has given them back. It takes them again when the process goes on.
    virtual void suspend() noexcept = 0;

    /// Ends each playback, as if the user had asked for it, while that answers true: the screen is locked, or
    /// somebody asks from outside. Hot keys pressed before that and not come up yet are dropped. It is asked
    /// again and again in a run.
    virtual void endPlaysWhen(std::function<bool()> endsPlays) = 0;

    /// Why nothing reaches the desktop any more, as when its server has gone; success while all is well.
    virtual Result<void> connection() const = 0;
};
