// SPDX-License-Identifier: MIT
#include "platform/x11/X11Session.h"

#include <optional>
#include <utility>
#include <vector>

#include "platform/Sentence.h"
#include "platform/none/NoDockingTray.h"
#include "platform/none/NoKeys.h"
#include "platform/none/NoLayers.h"
#include "platform/none/NoWindows.h"
#include "platform/x11/X11SessionCheck.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/watch/X11EventManager.h"
#include "platform/x11/watch/X11KeyboardLayout.h"
#include "platform/x11/windows/EwmhFocus.h"
#include "platform/x11/windows/X11DockingTray.h"
#include "platform/x11/windows/X11ScriptDesktop.h"
#include "platform/x11/windows/X11Windows.h"

namespace x11 {

namespace {

/// What has to do with keys, on a server that shows and takes them.
struct Keys {
    Keys(std::unique_ptr<X11EventManager> manager, Clock& clock)
        : eventManager(std::move(manager)), keyInjector(eventManager->runWatch(), clock) {}

    std::unique_ptr<X11EventManager> eventManager;
    X11KeyboardLayout keyboardLayout{*eventManager};
    X11KeyInjector keyInjector;
};

/// What has to do with windows of ours.
struct Surroundings {
    Surroundings(XConnection windowConnection, XConnection trayConnection, Clock& clock)
        : windows(std::move(windowConnection), clock), dockingTray(std::move(trayConnection)) {}

    X11Windows windows;
    X11DockingTray dockingTray;
};

Result<std::unique_ptr<Keys>> openKeys(Clock& clock) {
    auto manager = X11EventManager::open(clock);
    if (!manager) return manager.error();
    return std::make_unique<Keys>(std::move(manager).value(), clock);
}

/// Also lets the injector connect and clear away what a killed process has left.
Result<std::unique_ptr<Keys>> startKeys(Clock& clock) {
    auto keys = openKeys(clock);
    if (!keys) return keys.error();
    const auto started = keys.value()->keyInjector.start();
    if (!started) return started.error();
    return keys;
}

class X11Session final : public Session {
  public:
    /// Without keys `why` says why; without surroundings there are no windows.
    X11Session(Clock& clock, std::unique_ptr<Keys> keys, const Error& why,
               std::unique_ptr<Surroundings> surroundings, SessionUse use)
        : m_noKeys(why),
          m_keys(std::move(keys)),
          m_surroundings(std::move(surroundings)),
          m_scriptDesktop(clock),
          m_use(use) {
        if (m_keys) m_scriptDesktop.heedStops([this] { return m_keys->keyInjector.isCancelled(); });
    }
    ~X11Session() override;
    X11Session(const X11Session&) = delete;
    X11Session& operator=(const X11Session&) = delete;

    const SessionServices& sessionServices() override { return m_services; }
    std::vector<EventSource*> eventSources() override;
    void interrupt() noexcept override {
        if (m_keys) m_keys->keyInjector.interrupt();
    }
    void suspend() noexcept override {
        if (m_keys) m_keys->keyInjector.suspend();
    }
    void endPlaysWhen(std::function<bool()> endsPlays) override {
        if (m_keys) m_keys->eventManager->endPlaysWhen(std::move(endsPlays));
    }
    Result<void> connection() const override {
        if (m_keys && m_keys->eventManager->isBroken())
            return Error{sentence("Session", "The X server is gone."), ""};
        return {};
    }

  private:
    SessionServices allServices();

    NoKeys m_noKeys;
    NoWindows m_noWindows;
    NoDockingTray m_noTray;
    NoLayers m_layers;
    std::unique_ptr<Keys> m_keys;
    std::unique_ptr<Surroundings> m_surroundings;
    X11ScriptDesktop m_scriptDesktop;
    X11SessionCheck m_sessionCheck{X11SessionCheck::sessionOfProcess(), m_keys != nullptr};
    SessionUse m_use;
    SessionServices m_services = allServices();
};

X11Session::~X11Session() {
    // A program that goes on for hours leaves its clipboard to the manager, if there is one.
    if (m_use == SessionUse::scripts) {
        m_scriptDesktop.clipboardOfScripts().leave();
    } else {
        m_scriptDesktop.clipboardOfScripts().handOver();
    }
}

template <typename Service>
Service& oneOf(Service* available, Service& otherwise) {
    return available != nullptr ? *available : otherwise;
}

SessionServices X11Session::allServices() {
    X11EventManager* const manager = m_keys ? m_keys->eventManager.get() : nullptr;
    return {
        .eventMonitor = oneOf<EventMonitor>(manager, m_noKeys.eventMonitor),
        .hotKeys = oneOf<HotKeys>(manager, m_noKeys.hotKeys),
        .keyboardLayout =
            oneOf<KeyboardLayout>(m_keys ? &m_keys->keyboardLayout : nullptr, m_noKeys.keyboardLayout),
        .keyInjector = oneOf<KeyInjector>(m_keys ? &m_keys->keyInjector : nullptr, m_noKeys.keyInjector),
        .scriptDesktop = m_scriptDesktop,
        .sessionCheck = m_sessionCheck,
        .windows = oneOf<Windows>(m_surroundings ? &m_surroundings->windows : nullptr, m_noWindows),
        .dockingTray = oneOf<DockingTray>(m_surroundings ? &m_surroundings->dockingTray : nullptr, m_noTray),
        .layers = m_layers};
}

std::vector<EventSource*> X11Session::eventSources() {
    std::vector<EventSource*> sources;
    if (m_keys) sources.push_back(m_keys->eventManager.get());
    if (m_surroundings) sources.push_back(&m_surroundings->dockingTray);
    return sources;
}

Result<std::unique_ptr<Session>> openForScripts(Clock& clock) {
    auto keys = openKeys(clock);
    if (!keys) return keys.error();
    return std::unique_ptr<Session>(
        std::make_unique<X11Session>(clock, std::move(keys).value(), Error{}, nullptr, SessionUse::scripts));
}

Result<std::unique_ptr<Session>> openForDesktop(Clock& clock) {
    auto trayConnection = XConnection::open();
    if (!trayConnection) return trayConnection.error();
    auto windowConnection = XConnection::open();
    if (!windowConnection) return windowConnection.error();
    auto surroundings = std::make_unique<Surroundings>(std::move(windowConnection).value(),
                                                       std::move(trayConnection).value(), clock);
    auto keys = startKeys(clock);
    const Error why = keys ? Error{} : keys.error();
    const X11SessionCheck check(X11SessionCheck::sessionOfProcess());
    // What the start-up finds out is told there.
    if (!keys && check.version() && check.access()) return why;
    return std::unique_ptr<Session>(std::make_unique<X11Session>(
        clock, keys ? std::move(keys).value() : nullptr, why, std::move(surroundings), SessionUse::desktop));
}

}  // namespace

Result<void> checkDisplay() {
    const X11SessionCheck::Session session = X11SessionCheck::sessionOfProcess();
    if (session.display.empty() && !session.waylandDisplay.empty()) {
        return Error{
            sentence("Session", "This is a Wayland session without an X server."),
            sentence(
                "Session",
                "Install Xwayland, or switch it on in the desktop's settings, and log in again; or choose "
                "an X11 session when you log in.")};
    }
    const auto connection = XConnection::open();
    return connection ? Result<void>() : connection.error();
}

std::unique_ptr<SessionCheck> examineSession() {
    return std::make_unique<X11SessionCheck>(X11SessionCheck::sessionOfProcess());
}

Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use) {
    return use == SessionUse::desktop ? openForDesktop(clock) : openForScripts(clock);
}

std::unique_ptr<CompositorFocus> openWindowFocus() {
    auto connection = XConnection::open();
    if (!connection) return nullptr;
    return std::make_unique<EwmhFocus>(std::move(connection).value());
}

void refuseFocus(WindowId window) {
    const auto opened = XConnection::open();
    if (!opened) return;
    const XConnection& connection = opened.value();
    const Property protocols(connection, window, connection.atom("WM_PROTOCOLS"));
    constexpr std::uint32_t most = 32;
    std::vector<std::uint32_t> names = protocols.numbers(XCB_ATOM_ATOM, most);
    if (std::erase(names, connection.atom("WM_TAKE_FOCUS")) == 0) return;
    protocols.write(XCB_ATOM_ATOM, names);
    connection.roundTrip();
}

}  // namespace x11
