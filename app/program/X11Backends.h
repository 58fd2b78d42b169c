// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/Result.h"

class BusLoop;
class Windows;
struct Services;
namespace x11 {
class X11DockingTray;
class X11EventManager;
class X11KeyInjector;
}  // namespace x11
namespace script {
class ScriptRunner;
}

/// Says in one line on standard error why the program cannot start; the exit status.
int reportFailure(const Error& error);

/// Whether there is an X server to show anything on. Nothing of the toolkit is needed; it is told to use that
/// server.
Result<void> chooseX11Display();

/// What stands behind each service in an X11 session, installed for the life of the object.
class X11Backends {
  public:
    /// Needs a QApplication. In a session that shows and takes no keys the services that have to do with keys
    /// answer with errors, so that the program can tell the user; fails where not even a window can be shown.
    static Result<std::unique_ptr<X11Backends>> open();
    /// The same, with another place to ask for the newest version and a file with the certificates of the
    /// authorities that count there.
    static Result<std::unique_ptr<X11Backends>> open(const std::string& updateUrl,
                                                     const std::string& authorities);
    ~X11Backends();
    X11Backends(const X11Backends&) = delete;
    X11Backends& operator=(const X11Backends&) = delete;

    Services& services();
    script::ScriptRunner& scripting();
    Windows& windows();

    // What the event loop has to serve. Null in a session without keys.
    x11::X11EventManager* eventManager();
    /// To be interrupted by signals.
    x11::X11KeyInjector* keyInjector();

    x11::X11DockingTray& dockingTray();
    BusLoop& busLoop();

  private:
    struct Parts;
    explicit X11Backends(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
