// SPDX-License-Identifier: MIT
#include "platform/x11/press/X11KeyInjector.h"

#include <utility>

#include "platform/Sentence.h"
#include "platform/x11/press/X11InjectionSession.h"

namespace x11 {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// What is made when the display is first needed.
struct DisplayParts {
    DisplayParts(InjectionConnection injection, std::unique_ptr<KeymapWatch> watch,
                 const X11KeyInjector::Options& options, Clock& clock)
        : connection(std::move(injection)),
          keymap(std::move(watch)),
          receivers(options.display, clock),
          binder(connection, *keymap, receivers, clock, options.patience),
          characters(*keymap, binder, clock),
          grab(keymap->connection(), clock) {}

    InjectionConnection connection;
    std::unique_ptr<KeymapWatch> keymap;
    Receivers receivers;
    KeyBinder binder;
    CharacterKeys characters;
    GrabWait grab;
};

}  // namespace

struct X11KeyInjector::Parts {
    explicit Parts(const Options& options)
        : mark(PlayingMark::fileFor(options.runtimeFolder, options.display)),
          guard(options.guard, options.display, mark.file()) {}

    RunInterrupt interrupt;
    PlayingMark mark;
    GuardLink guard;
    std::unique_ptr<DisplayParts> display;
    X11InjectionSession* session = nullptr;
};

X11KeyInjector::X11KeyInjector(RunWatch& watch, Clock& clock) : X11KeyInjector(watch, clock, Options()) {}

X11KeyInjector::X11KeyInjector(RunWatch& watch, Clock& clock, Options options)
    : m_watch(watch), m_clock(clock), m_options(std::move(options)) {
    if (m_options.display.empty()) m_options.display = environment("DISPLAY");
    if (m_options.runtimeFolder.empty()) m_options.runtimeFolder = environment("XDG_RUNTIME_DIR");
    m_parts = std::make_unique<Parts>(m_options);
}

X11KeyInjector::~X11KeyInjector() = default;

bool X11KeyInjector::findsGuard(const std::string& guard) { return GuardLink(guard, {}, {}).isThere(); }

Result<void> X11KeyInjector::start() {
    if (m_parts->display) return {};
    auto connection = InjectionConnection::open(m_options.display, m_watch);
    if (!connection) return connection.error();
    auto keymap = KeymapWatch::open(m_options.display);
    if (!keymap) return keymap.error();
    m_parts->display = std::make_unique<DisplayParts>(std::move(connection).value(),
                                                      std::move(keymap).value(), m_options, m_clock);
    if (m_parts->mark.takeStale()) releaseXtestKeys(m_parts->display->connection.get());
    m_parts->display->binder.clearLeftovers();
    return {};
}

Result<std::unique_ptr<InjectionSession>> X11KeyInjector::open(const InjectionPlan& plan) {
    if (m_parts->session != nullptr)
        return Error{sentence("Keys", "A script is running already."), sentence("Keys", "Wait for its end.")};
    const auto started = start();
    if (!started) return started.error();
    DisplayParts& display = *m_parts->display;
    const InjectionTools tools{.watch = m_watch,
                               .clock = m_clock,
                               .interrupt = m_parts->interrupt,
                               .mark = m_parts->mark,
                               .guard = m_parts->guard,
                               .connection = display.connection,
                               .keymap = *display.keymap,
                               .binder = display.binder,
                               .characters = display.characters,
                               .grab = display.grab};
    auto session = std::make_unique<X11InjectionSession>(
        tools, plan, [parts = m_parts.get()] { parts->session = nullptr; });
    m_parts->session = session.get();
    return std::unique_ptr<InjectionSession>(std::move(session));
}

void X11KeyInjector::startPlayback() {
    // What has come but was not read belongs to what was before.
    m_watch.drain();
    m_watch.startPlayback();
}

bool X11KeyInjector::isCancelled() {
    // A script that does nothing but think for a while; its run takes over again with the next stroke.
    if (m_parts->interrupt.isSuspended()) {
        rest();
        m_parts->interrupt.stopProcess();
    }
    m_watch.drain();
    if (m_parts->session != nullptr) m_parts->session->passTime();
    return m_parts->interrupt.isRaised() || m_watch.isCancelled() || m_watch.isLost();
}

void X11KeyInjector::stopPlayback() { m_watch.stopPlayback(); }

Step<> X11KeyInjector::awaitReaders() {
    if (!m_parts->display) return {};
    DisplayParts& display = *m_parts->display;
    RunWaiter waiter(m_clock, m_watch, m_parts->interrupt, m_parts->guard,
                     xcb_get_file_descriptor(display.connection.get()));
    const auto isRead = display.binder.awaitReaders(waiter);
    if (!isRead) return isRead.error();
    const auto change = display.characters.follow(true);
    if (!change) return change.error();
    if (!change.value().spoilt.empty()) return spoiltText(change.value().spoilt);
    if (isRead.value()) return {};
    return Error{sentence("Keys", "The program that was typed into has not read all of it."),
                 sentence("Keys", "See whether it hangs; what it reads later may lack characters.")};
}

void X11KeyInjector::rest() {
    if (m_parts->session != nullptr) m_parts->session->rest();
}

void X11KeyInjector::settle() {
    if (m_parts->session != nullptr) m_parts->session->settle();
}

void X11KeyInjector::interrupt() noexcept { m_parts->interrupt.raise(); }

void X11KeyInjector::suspend() noexcept { m_parts->interrupt.suspend(); }

}  // namespace x11
