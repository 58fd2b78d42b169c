// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/EventMonitor.h"
#include "platform/EventSource.h"
#include "platform/HotKeys.h"
#include "platform/Result.h"

class KeyboardState;
class RunWatch;

namespace x11 {

/// The keyboard as the X server shows it: the monitor of all key events and the global hot keys.
///
/// Why one object: their order is one, that of server time. The events of the two come on connections of
/// their own, since one that holds grabs is not sent the raw releases of the keys that it grabs.
///
/// Nothing seen is logged or kept. Lives on one thread; `clock` outlives it.
class X11EventManager final : public EventSource, public EventMonitor, public HotKeys {
  public:
    /// Connects to `display`, or to $DISPLAY if it is empty. Fails where the server cannot be reached or
    /// lacks XInput 2.2 or XKB.
    static Result<std::unique_ptr<X11EventManager>> open(const Clock& clock, const std::string& display = {});
    ~X11EventManager() override;
    X11EventManager(const X11EventManager&) = delete;
    X11EventManager& operator=(const X11EventManager&) = delete;

    /// For the event loop: readable when dispatch() has something to do, also when that is already in memory.
    int fileDescriptor() const override;
    /// Delivers everything that has come. Called again from within a handler it reads and keeps, and the
    /// outer call delivers. Does nothing while a run lasts.
    void dispatch() override;

    /// True once the server is gone: nothing comes any more, the descriptor is never readable again.
    bool isBroken() const;
    /// What does not work though the rest does: a server without RECORD shows no auto-repeats.
    const std::optional<Error>& problem() const;

    /// A playback ends where that answers true: the screen is locked, as others tell.
    void endPlaysWhen(std::function<bool()> endsPlays);

    /// What the injector needs while a run lasts (platform/run/RunWatch.h).
    RunWatch& runWatch();
    /// The keyboard's map and state as of the last event read.
    const KeyboardState& keyboard() const;

    // EventMonitor
    std::optional<Error> shortcoming() const override { return problem(); }
    Result<void> install(EventMonitor::Handler handler) override;
    void setWithheld(bool withheld) override;
    void withholdOnlyFor(WindowId window) override;
    void setKeepsOwnStrokes(bool keeps) override;
    void setShowsModifierKeys(bool shows) override;
    void setRecording(bool recording) override;
    void observeHold(std::function<void(bool held)> changed) override;

    // HotKeys
    void install(HotKeys::Handler pressed, HotKeys::Handler released) override;
    void observe(Observer observer) override;
    void request(const HotKeyRequest& request) override { requestAll({request}); }
    void requestAll(const std::vector<HotKeyRequest>& requests) override;
    void withdraw(HotKeyId id) override;
    HotKeyState state(HotKeyId id) const override;
    std::uint32_t lastPressTime() const override;

  private:
    class Parts;
    explicit X11EventManager(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> m_parts;
};

}  // namespace x11
