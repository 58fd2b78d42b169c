// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandSession.h"

#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/Sentence.h"
#include "platform/desktops/KWinWindows.h"
#include "platform/desktops/PortalLink.h"
#include "platform/desktops/SwayDesktop.h"
#include "platform/desktops/SwayLock.h"
#include "platform/evdev/DirectOpener.h"
#include "platform/evdev/EvdevEventMonitor.h"
#include "platform/evdev/FallbackOpener.h"
#include "platform/evdev/RepeatCounter.h"
#include "platform/evdev/access/AccessOpener.h"
#include "platform/evdev/devices/KernelCalls.h"
#include "platform/linux/BusAddresses.h"
#include "platform/monitor/LockAwareMonitor.h"
#include "platform/none/NoDockingTray.h"
#include "platform/none/NoEventMonitor.h"
#include "platform/none/NoHotKeys.h"
#include "platform/none/NoLayers.h"
#include "platform/wayland/Binders.h"
#include "platform/wayland/DesktopServices.h"
#include "platform/wayland/DesktopSignals.h"
#include "platform/wayland/PortalPressing.h"
#include "platform/wayland/ToplevelList.h"
#include "platform/wayland/VirtualPressing.h"
#include "platform/wayland/WaylandKeyInjector.h"
#include "platform/wayland/WaylandKeyboardLayout.h"
#include "platform/wayland/WaylandLayers.h"
#include "platform/wayland/WaylandScriptDesktop.h"
#include "platform/wayland/WaylandSessionCheck.h"
#include "platform/wayland/WaylandWindows.h"

namespace wayland {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

Error noMonitor() {
    return {sentence("Keyboards", "A Wayland session shows this program nothing of what is typed in others."),
            sentence("Keyboards", "Record with keyrill itself, or use an X11 session.")};
}

Error noHotKeys() {
    return {
        sentence("HotKeys", "This compositor gives no hot keys to programs."),
        sentence("HotKeys",
                 "Bind keys to commands such as \"keyrill --action=play\" in the compositor's settings.")};
}

Result<void> checkKeys(const WaylandConnection& connection) {
    if (hasVirtualKeyboards(connection)) return {};
    const DesktopServices desktop(connection, false);
    if (desktop.pressesByPortal()) return {};
    if (desktop.isKde()) {
        return Error{sentence("Keys", "KDE lets no program press keys: its portal does not answer."),
                     sentence("Keys", "Install xdg-desktop-portal-kde, or use an X11 session.")};
    }
    return Error{
        sentence("Keys", "This compositor lets no program press keys."),
        sentence(
            "Keys",
            "Use a compositor with virtual keyboards, such as sway, a desktop whose portal presses keys, "
            "such as KDE and GNOME, or an X11 session.")};
}

std::unique_ptr<SwayDesktop> openSway() {
    auto connection = SwayConnection::open();
    return connection ? std::make_unique<SwayDesktop>(std::move(connection).value()) : nullptr;
}

std::unique_ptr<SwayLock> openSwayLock(const Clock& clock) {
    auto connection = SwayConnection::open();
    return connection ? std::make_unique<SwayLock>(std::move(connection).value(), clock) : nullptr;
}

std::unique_ptr<Keymap> copyOf(const SeatKeymap& seat) {
    return std::make_unique<Keymap>(XkbKeymapPointer(xkb_keymap_ref(seat.keymap().get())));
}

evdev::RepeatRule ruleOf(const SeatKeymap::Repeat& repeat) {
    constexpr std::chrono::microseconds second{1'000'000};
    return {.delay = std::chrono::milliseconds(repeat.delay),
            .interval = repeat.rate > 0 ? second / repeat.rate : second.zero()};
}

/// Where the compositor takes no combinations for programs.
class NoGrabs final : public KeyGrabber {
  public:
    std::optional<std::string> grab(const KeyGrab& /*grab*/, const HotKeyRequest& /*request*/) override {
        return sentence("HotKeys", "this compositor gives no hot keys to programs");
    }
    void release(const KeyGrab& /*grab*/) override {}
};

class WaylandSession final : public Session {
  public:
    WaylandSession(std::unique_ptr<WaylandConnection> connection, Clock& clock, SessionUse use,
                   const XWindows& xWindows)
        : m_connection(std::move(connection)), m_clock(clock), m_use(use), m_xWindows(xWindows) {
        m_seat.observe([this] { followSeat(); });
        if (m_seat.repeat()) m_keys.setRepeatRule(ruleOf(*m_seat.repeat()));
        if (m_signals) m_keys.listenTo(*m_signals);
        if (m_desktop.layouts() != nullptr) m_desktop.layouts()->observe([this] { followLayout(); });
    }
    ~WaylandSession() override {
        m_seat.observe({});
        if (m_desktop.layouts() != nullptr) m_desktop.layouts()->observe({});
        if (m_use == SessionUse::scripts) m_scriptDesktop.clipboardOfScripts().leave();
    }
    WaylandSession(const WaylandSession&) = delete;
    WaylandSession& operator=(const WaylandSession&) = delete;

    const SessionServices& sessionServices() override { return m_services; }
    std::vector<EventSource*> eventSources() override {
        std::vector<EventSource*> sources{m_connection.get(), &m_keys, &m_windows};
        if (m_sway && servesDesktop()) sources.push_back(&m_sway->covers());
        if (m_lock && servesDesktop()) sources.push_back(&m_lockAwareMonitor);
        if (m_layers && m_layers->areOffered()) sources.push_back(m_layers->eventSource());
        // Who has no hot keys hears of layouts all the same.
        if (m_desktop.isGnome() && !m_bindings) sources.push_back(&m_desktop.bus()->eventSource());
        return sources;
    }
    void interrupt() noexcept override { m_injector.interrupt(); }
    void suspend() noexcept override { m_injector.suspend(); }
    void endPlaysWhen(std::function<bool()> endsPlays) override {
        m_keys.endPlaysWhen([this, endsPlays = std::move(endsPlays)] {
            return (endsPlays && endsPlays()) || hasLockerKeyboard();
        });
    }
    Result<void> connection() const override {
        if (m_connection->isBroken())
            return Error{sentence("Session", "The Wayland compositor is gone."), ""};
        return {};
    }

    Result<void> start() { return m_injector.start(); }

  private:
    /// A program that plays a script asks nobody for the keyboard, and has no hot keys; nor has one that only
    /// looks.
    bool servesDesktop() const { return m_use == SessionUse::desktop; }
    std::unique_ptr<HotKeyBinder> openBindings() {
        return servesDesktop() ? openBinder(m_desktop, m_seat) : nullptr;
    }
    std::unique_ptr<KeyGrabber> openHotKeyLookup() {
        return m_use == SessionUse::check ? openLookup(m_desktop, m_seat) : nullptr;
    }
    KeyGrabber& grabs() {
        if (m_bindings) return *m_bindings;
        return m_lookup ? *m_lookup : m_noGrabs;
    }
    HotKeys& hotKeys() { return m_bindings || m_lookup ? static_cast<HotKeys&>(m_keys) : m_noHotKeys; }
    std::unique_ptr<DesktopSignals> openSignals() {
        if (!m_bindings) return nullptr;
        return std::make_unique<DesktopSignals>(*m_bindings, m_keys, [this] {
            return m_seat.hasOwnKeyboard() ? std::nullopt : std::optional(m_seat.group());
        });
    }
    Result<std::unique_ptr<ForeignWindows>> openWindows() const {
        return m_desktop.isKde() ? KWinWindows::open(SessionBus::addressOfProcess()) : ToplevelList::open();
    }
    EventMonitor& eventMonitor() {
        if (!servesDesktop()) return m_noMonitor;
        // Elsewhere nobody could be asked.
        return m_lock ? static_cast<EventMonitor&>(m_lockAwareMonitor) : m_keys;
    }
    /// Sway is asked for it by the same connection as for all else.
    std::unique_ptr<CompositorFocus> openFocus() const {
        if (m_desktop.isKde()) return std::make_unique<KWinFocus>(SessionBus::addressOfProcess());
        return servesDesktop() && !m_sway ? m_xWindows.openFocus() : nullptr;
    }
    bool hasLockerKeyboard() { return m_lock && m_lock->isLocked(); }
    std::unique_ptr<Pressing> makePressing() {
        if (m_desktop.layouts() == nullptr) {
            return std::make_unique<VirtualPressing>(*m_connection, m_seat, m_clock);
        }
        return std::make_unique<PortalPressing>(
            *m_connection, *m_desktop.layouts(), m_seat, m_clock,
            PortalLink::Options{.tokenFile = PortalLink::tokenFileOfProcess()});
    }
    xkb_layout_index_t group() {
        if (m_desktop.layouts() != nullptr) return m_desktop.layouts()->group();
        return m_sway ? m_sway->group() : 0;
    }
    evdev::EvdevEventMonitor::Session keys() {
        return {.clock = m_clock,
                .opener = servesDesktop() ? m_opener : static_cast<evdev::DeviceOpener&>(m_direct),
                .calls = m_calls,
                .grabs = grabs(),
                .layout = [this] { return m_seat.group(); },
                .isDesktopLost = [this] { return m_connection->isBroken(); }};
    }
    void followLayout() {
        if (m_seat.hasOwnKeyboard()) return;
        m_keys.setLayout(m_seat.group());
        if (m_bindings) m_bindings->layoutChanged();
    }
    void followSeat() {
        m_keys.setKeymap(copyOf(m_seat));
        if (m_seat.repeat()) m_keys.setRepeatRule(ruleOf(*m_seat.repeat()));
    }

    std::unique_ptr<WaylandConnection> m_connection;
    Clock& m_clock;
    SessionUse m_use;
    XWindows m_xWindows;
    std::unique_ptr<SwayDesktop> m_sway = openSway();
    std::unique_ptr<SwayLock> m_lock = openSwayLock(m_clock);
    DesktopServices m_desktop{*m_connection, servesDesktop()};
    SeatKeymap m_seat{*m_connection, environment("XDG_RUNTIME_DIR"), [this] { return group(); }};
    std::unique_ptr<HotKeyBinder> m_bindings = openBindings();
    std::unique_ptr<KeyGrabber> m_lookup = openHotKeyLookup();
    NoGrabs m_noGrabs;
    evdev::DirectOpener m_direct;
    evdev::AccessOpener m_access{busAddresses(environmentOfProcess()).system};
    evdev::FallbackOpener m_opener{m_direct, m_access};
    evdev::KernelCalls m_calls;
    evdev::EvdevEventMonitor m_keys{keys(), copyOf(m_seat)};
    std::unique_ptr<DesktopSignals> m_signals = openSignals();
    std::unique_ptr<Pressing> m_pressing = makePressing();
    WaylandKeyInjector m_injector{*m_connection, m_seat, *m_pressing, m_keys.runWatch(), m_clock};
    WaylandKeyboardLayout m_layout{m_seat};
    WaylandScriptDesktop m_scriptDesktop{[this] { return openWindows(); }};
    WaylandSessionCheck m_check;
    LockAwareMonitor m_lockAwareMonitor{m_keys, [this] { return hasLockerKeyboard(); },
                                        [this] { return m_keys.eventTime(); }};
    NoEventMonitor m_noMonitor{noMonitor()};
    NoHotKeys m_noHotKeys{noHotKeys()};
    std::unique_ptr<CompositorFocus> m_focus = openFocus();
    WaylandWindows m_windows{m_sway ? m_sway.get() : m_focus.get(), m_xWindows.refuseFocus, m_clock};
    NoDockingTray m_tray;
    std::unique_ptr<WaylandLayers> m_layers =
        m_use == SessionUse::desktop ? std::make_unique<WaylandLayers>() : nullptr;
    NoLayers m_noLayers;
    SessionServices m_services{.eventMonitor = eventMonitor(),
                               .hotKeys = hotKeys(),
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
        return Error{sentence("Session", "$WAYLAND_DISPLAY names no Wayland compositor."),
                     sentence("Session", "Start the program in a Wayland session.")};
    }
    const auto connection = WaylandConnection::open();
    return connection ? checkKeys(*connection.value()) : connection.error();
}

std::unique_ptr<SessionCheck> examineSession() { return std::make_unique<WaylandSessionCheck>(); }

Result<std::unique_ptr<Session>> openSession(Clock& clock, SessionUse use, const XWindows& xWindows) {
    auto connection = WaylandConnection::open();
    if (!connection) return connection.error();
    auto session = std::make_unique<WaylandSession>(std::move(connection).value(), clock, use, xWindows);
    if (use == SessionUse::check) return std::unique_ptr<Session>(std::move(session));
    const auto started = session->start();
    if (!started) return started.error();
    return std::unique_ptr<Session>(std::move(session));
}

}  // namespace wayland
