// SPDX-License-Identifier: MIT
#include "app/program/X11Backends.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "app/program/LinuxServices.h"
#include "platform/Services.h"
#include "platform/linux/SteadyClock.h"
#include "platform/script/ScriptRunner.h"
#include "platform/x11/X11Check.h"
#include "platform/x11/X11DockingTray.h"
#include "platform/x11/X11EventManager.h"
#include "platform/x11/X11KeyInjector.h"
#include "platform/x11/X11KeyboardLayout.h"
#include "platform/x11/X11SessionCheck.h"
#include "platform/x11/X11Windows.h"

struct X11Backends::Parts {
    Parts(std::unique_ptr<SteadyClock> steadyClock, std::unique_ptr<X11EventManager> manager,
          XConnection trayConnection, XConnection windowConnection)
        : clock(std::move(steadyClock)),
          eventManager(std::move(manager)),
          windows(std::move(windowConnection), *clock),
          dockingTray(std::move(trayConnection)) {}

    std::unique_ptr<SteadyClock> clock;
    std::unique_ptr<X11EventManager> eventManager;
    X11KeyboardLayout keyboardLayout{*eventManager};
    X11KeyInjector keyInjector{eventManager->runWatch(), *clock};
    script::ScriptRunner scripting{keyInjector};
    X11Windows windows;
    X11DockingTray dockingTray;
    LinuxServices neutral;
    X11SessionCheck sessionCheck{X11SessionCheck::sessionOfProcess()};
    Services services{.clock = *clock,
                      .eventMonitor = *eventManager,
                      .hotKeys = *eventManager,
                      .keyboardLayout = keyboardLayout,
                      .keyInjector = keyInjector,
                      .scripting = scripting,
                      .settings = neutral.settings,
                      .loginItems = neutral.loginItems,
                      .workspace = neutral.workspace,
                      .systemFacts = neutral.systemFacts,
                      .updateService = *neutral.updateService,
                      .macroFiles = neutral.macroFiles,
                      .notifications = neutral.notifications,
                      .screenLock = neutral.screenLock,
                      .sessionCheck = sessionCheck};
    ServicesScope scope{services};
};

int reportFailure(const Error& error) {
    std::fprintf(stderr, "keyrill: %s %s\n", error.message.c_str(), error.hint.c_str());
    return EXIT_FAILURE;
}

Result<std::unique_ptr<X11Backends>> X11Backends::open() {
    const auto access = checkX11Access();
    if (!access) return access.error();
    auto clock = std::make_unique<SteadyClock>();
    auto manager = X11EventManager::open(*clock);
    if (!manager) return manager.error();
    auto trayConnection = XConnection::open();
    if (!trayConnection) return trayConnection.error();
    auto windowConnection = XConnection::open();
    if (!windowConnection) return windowConnection.error();
    auto parts =
        std::make_unique<Parts>(std::move(clock), std::move(manager).value(),
                                std::move(trayConnection).value(), std::move(windowConnection).value());
    const auto started = parts->keyInjector.start();
    if (!started) return started.error();
    // The toolkit would prefer a Wayland display that is offered too.
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    return std::unique_ptr<X11Backends>(new X11Backends(std::move(parts)));
}

X11Backends::X11Backends(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
X11Backends::~X11Backends() = default;

Services& X11Backends::services() { return m_parts->services; }
Windows& X11Backends::windows() { return m_parts->windows; }
X11EventManager& X11Backends::eventManager() { return *m_parts->eventManager; }
X11DockingTray& X11Backends::dockingTray() { return m_parts->dockingTray; }
BusLoop& X11Backends::busLoop() { return m_parts->neutral.busLoop; }
X11KeyInjector& X11Backends::keyInjector() { return m_parts->keyInjector; }
