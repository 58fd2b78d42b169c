// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Result.h"

class BusLoop;
class Windows;
class X11DockingTray;
class X11EventManager;
class X11KeyInjector;
struct Services;

/// Says in one line on standard error why the program cannot start; the exit status.
int reportFailure(const Error& error);

/// What stands behind each service in an X11 session, installed for the life of the object.
class X11Backends {
  public:
    /// Fails where there is no X server, or one that shows or takes no key events. Nothing of the toolkit is
    /// needed yet; it will use the same X server.
    static Result<std::unique_ptr<X11Backends>> open();
    ~X11Backends();
    X11Backends(const X11Backends&) = delete;
    X11Backends& operator=(const X11Backends&) = delete;

    Services& services();
    Windows& windows();

    // What the event loop has to serve.
    X11EventManager& eventManager();
    X11DockingTray& dockingTray();
    BusLoop& busLoop();
    /// To be interrupted by signals.
    X11KeyInjector& keyInjector();

  private:
    struct Parts;
    explicit X11Backends(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};
