// SPDX-License-Identifier: MIT
#include "app/program/X11Backends.h"

#include <utility>

#include "platform/Services.h"
#include "platform/fake/FakePlatform.h"
#include "platform/linux/KeyFileSettings.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/X11DockingTray.h"
#include "platform/x11/X11Windows.h"

struct X11Backends::Parts {
    Parts(XConnection trayConnection, XConnection windowConnection)
        : windows(std::move(windowConnection), clock), dockingTray(std::move(trayConnection)) {}

    SteadyClock clock;
    FakePlatform fake;
    KeyFileSettings settings{configFoldersOfProcess()};
    X11Windows windows;
    X11DockingTray dockingTray;
    Services services{.clock = clock,
                      .eventMonitor = fake.eventMonitor,
                      .hotKeys = fake.hotKeys,
                      .keyboardLayout = fake.keyboardLayout,
                      .keyInjector = fake.keyInjector,
                      .scripting = fake.scripting,
                      .settings = settings};
    ServicesScope scope{services};
};

Result<std::unique_ptr<X11Backends>> X11Backends::open() {
    Result<XConnection> trayConnection = XConnection::open();
    if (!trayConnection) return trayConnection.error();
    Result<XConnection> windowConnection = XConnection::open();
    if (!windowConnection) return windowConnection.error();
    return std::unique_ptr<X11Backends>(new X11Backends(
        std::make_unique<Parts>(std::move(trayConnection).value(), std::move(windowConnection).value())));
}

X11Backends::X11Backends(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
X11Backends::~X11Backends() = default;

Services& X11Backends::services() { return m_parts->services; }
Windows& X11Backends::windows() { return m_parts->windows; }
X11DockingTray& X11Backends::dockingTray() { return m_parts->dockingTray; }
