// SPDX-License-Identifier: MIT
#include "cli/Playback.h"

#include <signal.h>

#include <array>
#include <utility>

#include "platform/linux/SteadyClock.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"
#include "platform/x11/windows/X11ScriptDesktop.h"

namespace {

constexpr std::array<int, 3> signalNumbers{SIGINT, SIGTERM, SIGHUP};

/// What the signal handler knows: it is given nothing but the number.
struct Known {
    x11::X11KeyInjector* injector = nullptr;
    volatile sig_atomic_t received = 0;
};

/// Made without code, so that there is nothing to wait for inside the handler.
Known& known() {
    static constinit Known instance;
    return instance;
}

void handleSignal(int number) {
    known().received = number;
    if (known().injector != nullptr) known().injector->interrupt();
}

void setHandlers(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : signalNumbers) sigaction(number, &action, nullptr);
}

class X11Playback final : public Playback {
  public:
    X11Playback(std::unique_ptr<SteadyClock> clock, std::unique_ptr<x11::X11EventManager> events)
        : m_clock(std::move(clock)), m_events(std::move(events)), m_injector(m_events->runWatch(), *m_clock) {
        known().injector = &m_injector;
        setHandlers(handleSignal);
    }
    /// A signal that comes this late is let through: nothing is held any more.
    ~X11Playback() override {
        setHandlers(SIG_DFL);
        known().injector = nullptr;
    }
    X11Playback(const X11Playback&) = delete;
    X11Playback& operator=(const X11Playback&) = delete;

    KeyInjector& injector() override { return m_injector; }
    ScriptDesktop& desktop() override { return m_desktop; }
    void leaveClipboard() override { m_desktop.clipboardOfScripts().leave(); }
    int signalNumber() const override { return known().received; }
    bool isLost() const override { return m_events->isBroken(); }

  private:
    std::unique_ptr<SteadyClock> m_clock;
    std::unique_ptr<x11::X11EventManager> m_events;
    x11::X11ScriptDesktop m_desktop{*m_clock};
    x11::X11KeyInjector m_injector;
};

}  // namespace

Result<std::unique_ptr<Playback>> Playback::make() {
    auto clock = std::make_unique<SteadyClock>();
    Result<std::unique_ptr<x11::X11EventManager>> events = x11::X11EventManager::open(*clock);
    if (!events) return events.error();
    return std::unique_ptr<Playback>(
        std::make_unique<X11Playback>(std::move(clock), std::move(events).value()));
}
