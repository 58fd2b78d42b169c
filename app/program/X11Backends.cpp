// SPDX-License-Identifier: MIT
#include "app/program/X11Backends.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "app/program/LinuxServices.h"
#include "platform/Addresses.h"
#include "platform/Services.h"
#include "platform/linux/SteadyClock.h"
#include "platform/none/UnavailableKeys.h"
#include "platform/script/run/ScriptRunner.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/server/X11Check.h"
#include "platform/x11/server/X11SessionCheck.h"
#include "platform/x11/watch/X11EventManager.h"
#include "platform/x11/watch/X11KeyboardLayout.h"
#include "platform/x11/windows/X11DockingTray.h"
#include "platform/x11/windows/X11ScriptDesktop.h"
#include "platform/x11/windows/X11Windows.h"

namespace {

/// What has to do with keys, in a session that shows and takes them.
struct X11Keys {
    X11Keys(std::unique_ptr<x11::X11EventManager> manager, Clock& clock)
        : eventManager(std::move(manager)), keyInjector(eventManager->runWatch(), clock) {}

    std::unique_ptr<x11::X11EventManager> eventManager;
    x11::X11KeyboardLayout keyboardLayout{*eventManager};
    x11::X11KeyInjector keyInjector;
};

Result<std::unique_ptr<X11Keys>> openKeys(Clock& clock) {
    const auto access = x11::checkX11Access();
    if (!access) return access.error();
    auto manager = x11::X11EventManager::open(clock);
    if (!manager) return manager.error();
    auto keys = std::make_unique<X11Keys>(std::move(manager).value(), clock);
    const auto started = keys->keyInjector.start();
    if (!started) return started.error();
    return keys;
}

template <typename Service>
Service& oneOf(Service* available, Service& otherwise) {
    return available != nullptr ? *available : otherwise;
}

}  // namespace

struct X11Backends::Parts {
    Parts(std::unique_ptr<SteadyClock> steadyClock, Result<std::unique_ptr<X11Keys>> openedKeys,
          x11::XConnection trayConnection, x11::XConnection windowConnection, const UpdateSource& updates)
        : clock(std::move(steadyClock)),
          unavailable(openedKeys ? Error() : openedKeys.error()),
          keys(openedKeys ? std::move(openedKeys).value() : nullptr),
          windows(std::move(windowConnection), *clock),
          dockingTray(std::move(trayConnection)),
          neutral(updates) {}

    std::unique_ptr<SteadyClock> clock;
    UnavailableKeys unavailable;
    std::unique_ptr<X11Keys> keys;
    KeyInjector& keyInjector =
        oneOf<KeyInjector>(keys ? &keys->keyInjector : nullptr, unavailable.keyInjector);
    x11::X11ScriptDesktop scriptDesktop{*clock};
    script::ScriptRunner scripting{keyInjector, scriptDesktop};
    x11::X11Windows windows;
    x11::X11DockingTray dockingTray;
    LinuxServices neutral;
    x11::X11SessionCheck sessionCheck{x11::X11SessionCheck::sessionOfProcess()};
    x11::X11EventManager* const eventManager = keys ? keys->eventManager.get() : nullptr;
    Services services{.clock = *clock,
                      .eventMonitor = oneOf<EventMonitor>(eventManager, unavailable.eventMonitor),
                      .hotKeys = oneOf<HotKeys>(eventManager, unavailable.hotKeys),
                      .keyboardLayout = oneOf<KeyboardLayout>(keys ? &keys->keyboardLayout : nullptr,
                                                              unavailable.keyboardLayout),
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

Result<void> chooseX11Display() {
    const auto connection = x11::XConnection::open();
    if (!connection) return connection.error();
    // The toolkit would prefer a Wayland display that is offered too.
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    return {};
}

Result<std::unique_ptr<X11Backends>> X11Backends::open() {
    return open(std::string(addresses::updateServiceUrl), {});
}

Result<std::unique_ptr<X11Backends>> X11Backends::open(const std::string& updateUrl,
                                                       const std::string& authorities) {
    auto trayConnection = x11::XConnection::open();
    if (!trayConnection) return trayConnection.error();
    auto windowConnection = x11::XConnection::open();
    if (!windowConnection) return windowConnection.error();
    auto clock = std::make_unique<SteadyClock>();
    auto keys = openKeys(*clock);
    const x11::X11SessionCheck check(x11::X11SessionCheck::sessionOfProcess());
    // What the start-up finds out is told there.
    if (!keys && check.version() && check.access()) return keys.error();
    return std::unique_ptr<X11Backends>(new X11Backends(
        std::make_unique<Parts>(std::move(clock), std::move(keys), std::move(trayConnection).value(),
                                std::move(windowConnection).value(), UpdateSource{updateUrl, authorities})));
}

X11Backends::X11Backends(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
X11Backends::~X11Backends() { m_parts->scriptDesktop.clipboardOfScripts().handOver(); }

Services& X11Backends::services() { return m_parts->services; }
script::ScriptRunner& X11Backends::scripting() { return m_parts->scripting; }
Windows& X11Backends::windows() { return m_parts->windows; }
x11::X11EventManager* X11Backends::eventManager() { return m_parts->eventManager; }
x11::X11DockingTray& X11Backends::dockingTray() { return m_parts->dockingTray; }
BusLoop& X11Backends::busLoop() { return m_parts->neutral.busLoop; }

x11::X11KeyInjector* X11Backends::keyInjector() {
    return m_parts->keys ? &m_parts->keys->keyInjector : nullptr;
}
