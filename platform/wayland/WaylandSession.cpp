// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandSession.h"

#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wlr-data-control-unstable-v1-client-protocol.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/desktops/SwayDesktop.h"
#include "platform/desktops/SwayLock.h"
#include "platform/monitor/LockAwareMonitor.h"
#include "platform/none/NoCapabilities.h"
#include "platform/none/NoDockingTray.h"
#include "platform/none/NoHotKeys.h"
#include "platform/none/NoLayers.h"
#include "platform/wayland/WaylandEventMonitor.h"
#include "platform/wayland/WaylandKeyInjector.h"
#include "platform/wayland/WaylandKeyboardLayout.h"
#include "platform/wayland/WaylandLayers.h"
#include "platform/wayland/WaylandRunWatch.h"
#include "platform/wayland/WaylandScriptDesktop.h"
#include "platform/wayland/WaylandWindows.h"

namespace wayland {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

Error noMonitor() {
    return {"A Wayland session shows no program what is typed in others, so nothing can be recorded yet.",
            "Record in an X11 session; macros play in both."};
}

Error noHotKeys() {
    return {"This compositor gives no hot keys to programs.",
            "Bind keys to commands in the compositor's own settings."};
}

Result<void> checkKeys(const WaylandConnection& connection) {
    if (connection.offers(zwp_virtual_keyboard_manager_v1_interface)) return {};
    return Error{"This compositor lets no program press keys.",
                 "Use a compositor with virtual keyboards, such as sway, or an X11 session."};
}

std::unique_ptr<SwayDesktop> openSway() {
    auto connection = SwayConnection::open();
    return connection ? std::make_unique<SwayDesktop>(std::move(connection).value()) : nullptr;
}

std::unique_ptr<SwayLock> openSwayLock(const Clock& clock) {
    auto connection = SwayConnection::open();
    return connection ? std::make_unique<SwayLock>(std::move(connection).value(), clock) : nullptr;
}

bool isSway() { return static_cast<bool>(SwayConnection::open()); }

CapabilityState fullyIf(bool isThere, Means means, Lack lack) {
    return isThere ? CapabilityState{Extent::fully, means, Lack::nothing}
                   : CapabilityState{Extent::nothing, Means::none, lack};
}

/// What was looked at when the session was entered is so.
class WaylandSessionCheck final : public SessionCheck {
  public:
    Result<> version() const override { return {}; }
    Result<> access() const override { return {}; }
    SessionCapabilities capabilities() const override;
    SessionDetails details() const override;
};

SessionCapabilities WaylandSessionCheck::capabilities() const {
    const auto connection = WaylandConnection::open();
    if (!connection) return noCapabilities(Lack::display);
    const bool presses = connection.value()->offers(zwp_virtual_keyboard_manager_v1_interface);
    const bool hasClipboard = connection.value()->offers(zwlr_data_control_manager_v1_interface);
    const CapabilityState pressing = fullyIf(presses, Means::virtualKeyboard, Lack::virtualKeyboard);
    return {.recording = {.lack = Lack::foreignKeys},
            .hotKeys = fullyIf(isSway(), Means::swayBindings, Lack::compositorKeys),
            .pressing = pressing,
            .text = pressing,
            .clipboard = fullyIf(hasClipboard, Means::dataControl, Lack::dataControl),
            .overlay = connection.value()->offers(zwlr_layer_shell_v1_interface)
                           ? CapabilityState{Extent::fully, Means::layer, Lack::nothing}
                           : CapabilityState{Extent::partly, Means::ordinaryWindow, Lack::layers},
            .windows = fullyIf(isSway(), Means::swayTree, Lack::foreignWindows),
            .tray = {.lack = Lack::tray}};
}

SessionDetails WaylandSessionCheck::details() const {
    SessionDetails details{.display = environment("WAYLAND_DISPLAY")};
    const auto connection = WaylandConnection::open();
    if (!connection) return details;
    details.parts = {
        {"virtual keyboard", connection.value()->offers(zwp_virtual_keyboard_manager_v1_interface)},
        {"data control", connection.value()->offers(zwlr_data_control_manager_v1_interface)},
        {"layer shell", connection.value()->offers(zwlr_layer_shell_v1_interface)},
        {"sway", isSway()}};
    return details;
}

class WaylandSession final : public Session {
  public:
    WaylandSession(std::unique_ptr<WaylandConnection> connection, Clock& clock, SessionUse use)
        : m_connection(std::move(connection)), m_clock(clock), m_use(use) {}
    ~WaylandSession() override {
        if (m_use == SessionUse::scripts) m_scriptDesktop.clipboardOfScripts().leave();
    }
    WaylandSession(const WaylandSession&) = delete;
    WaylandSession& operator=(const WaylandSession&) = delete;

    const SessionServices& sessionServices() override { return m_services; }
    std::vector<EventSource*> eventSources() override {
        std::vector<EventSource*> sources{m_connection.get()};
        if (m_hotKeys) sources.push_back(m_hotKeys.get());
        if (m_layers && m_layers->areOffered()) sources.push_back(m_layers->eventSource());
        return sources;
    }
    void interrupt() noexcept override { m_injector.interrupt(); }
    void suspend() noexcept override { m_injector.suspend(); }
    void endPlaysWhen(std::function<bool()> isLocked) override {
        m_watch.endPlaysWhen([this, isLocked = std::move(isLocked)] {
            return (isLocked && isLocked()) || hasLockerKeyboard();
        });
    }
    Result<void> connection() const override {
        if (m_connection->isBroken()) return Error{"The Wayland compositor is gone.", ""};
        return {};
    }

    Result<void> start() { return m_injector.start(); }

  private:
    /// A program that plays a script has none.
    std::unique_ptr<WaylandHotKeys> openHotKeys() {
        if (m_use == SessionUse::scripts) return nullptr;
        auto hotKeys = WaylandHotKeys::open(m_seat);
        return hotKeys ? std::move(hotKeys).value() : nullptr;
    }
    bool hasLockerKeyboard() { return m_lock && m_lock->isLocked(); }
    xkb_layout_index_t group() { return m_sway ? m_sway->group() : 0; }

    std::unique_ptr<WaylandConnection> m_connection;
    Clock& m_clock;
    SessionUse m_use;
    std::unique_ptr<SwayDesktop> m_sway = openSway();
    std::unique_ptr<SwayLock> m_lock = openSwayLock(m_clock);
    SeatKeymap m_seat{*m_connection, environment("XDG_RUNTIME_DIR"), [this] { return group(); }};
    std::unique_ptr<WaylandHotKeys> m_hotKeys = openHotKeys();
    WaylandRunWatch m_watch{*m_connection, m_hotKeys.get()};
    WaylandKeyInjector m_injector{*m_connection, m_seat, m_watch, m_clock};
    WaylandKeyboardLayout m_layout{m_seat};
    WaylandScriptDesktop m_scriptDesktop;
    WaylandSessionCheck m_check;
    WaylandEventMonitor m_monitor{noMonitor(), m_hotKeys.get()};
    LockAwareMonitor m_lockAwareMonitor{m_monitor, [this] { return hasLockerKeyboard(); }};
    NoHotKeys m_noHotKeys{noHotKeys()};
    WaylandWindows m_windows{m_sway.get(), m_clock};
    NoDockingTray m_tray;
    std::unique_ptr<WaylandLayers> m_layers =
        m_use == SessionUse::desktop ? std::make_unique<WaylandLayers>() : nullptr;
    NoLayers m_noLayers;
    SessionServices m_services{.eventMonitor = m_lockAwareMonitor,
                               .hotKeys = m_hotKeys ? static_cast<HotKeys&>(*m_hotKeys) : m_noHotKeys,
                               .keyboardLayout = m_layout,
                               .keyInjector = m_injector,
                               .scriptDesktop = m_scriptDesktop,
                               .sessionCheck = m_check,
                               .windows = m_windows,
                               .dockingTray = m_tray,
                               .layers = m_layers ? static_cast<Layers&>(*m_layers) : m_noLayers};
};

}  // namespace

Result<void> checkDisplay() {
    if (environment("WAYLAND_DISPLAY").empty()) {
        return Error{"$WAYLAND_DISPLAY names no Wayland compositor.",
                     "Start the program in a Wayland session."};
    }
    const auto connection = WaylandConnection::open();
    return connection ? checkKeys(*connection.value()) : connection.error();
}

std::unique_ptr<SessionCheck> examineSession() { return std::make_unique<WaylandSessionCheck>(); }

Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use) {
    auto connection = WaylandConnection::open();
    if (!connection) return connection.error();
    auto session = std::make_unique<WaylandSession>(std::move(connection).value(), clock, use);
    const auto started = session->start();
    if (!started) return started.error();
    return std::unique_ptr<Session>(std::move(session));
}

}  // namespace wayland
