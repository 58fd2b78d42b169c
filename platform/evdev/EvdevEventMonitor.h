// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "platform/Clock.h"
#include "platform/EventMonitor.h"
#include "platform/EventSource.h"
#include "platform/HotKeys.h"
#include "platform/evdev/DeviceOpener.h"
#include "platform/evdev/devices/DeviceCalls.h"
#include "platform/evdev/devices/InputFolders.h"

class KeyboardState;
class Keymap;
class KeyGrabber;
class RunWatch;
struct KeyGrab;

namespace evdev {

struct RepeatRule;

/// The keyboards of a Wayland session as the kernel shows them: the monitor of all key events, and the hot
/// keys in one order with it.
///
/// Keyboards are open while a macro is recorded or played, and only then; meanwhile hot keys come from the
/// same stream and what the desktop tells of them is ignored. At other times the desktop alone tells of them
/// (desktopTells). What a key means is told by the seat's keymap and layout, which others know: setKeymap(),
/// setLayout(), setRepeatRule().
///
/// Nothing seen is logged or kept. Lives on one thread.
class EvdevEventMonitor final : public EventSource, public EventMonitor, public HotKeys {
  public:
    /// All that is referred to outlives the monitor.
    struct Session {
        const Clock& clock;
        DeviceOpener& opener;
        const DeviceCalls& calls;
        /// Takes hot keys from the other programs.
        KeyGrabber& grabs;
        InputFolders folders = {};
    };
    EvdevEventMonitor(const Session& session, std::unique_ptr<Keymap> keymap);
    ~EvdevEventMonitor() override;
    EvdevEventMonitor(const EvdevEventMonitor&) = delete;
    EvdevEventMonitor& operator=(const EvdevEventMonitor&) = delete;

    // EventSource
    int fileDescriptor() const override;
    /// Delivers everything that has come. Called again from within a handler it reads and keeps, and the
    /// outer call delivers. Delivers nothing while a run lasts.
    void dispatch() override;

    /// The seat's keymap, the layout that is locked in it (0 is the first), and how keys repeat, from now on.
    void setKeymap(std::unique_ptr<Keymap> keymap);
    void setLayout(std::uint32_t layout);
    void setRepeatRule(const RepeatRule& rule);

    /// The desktop tells that a combination which the grabber has taken is pressed, or released.
    void desktopTells(const KeyGrab& grab, bool press);

    /// While the screen is locked neither key presses nor hot keys are delivered, modifier changes go on.
    void setScreenLocked(bool locked);
    /// A playback ends where that answers true: the screen is locked, as others tell.
    void endPlaysWhen(std::function<bool()> isLocked);

    /// Who is told, from dispatch(), when keyboards could not be opened or can no longer be read, and with
    /// nothing when they can again; at most one.
    void observeProblem(std::function<void(const std::optional<Error>&)> changed);

    /// What an injector needs while a run lasts. The keys that it presses are on no keyboard, and are known
    /// as soon as they are announced.
    RunWatch& runWatch();
    const KeyboardState& keyboard() const;

    // EventMonitor
    std::optional<Error> shortcoming() const override;
    Result<void> install(EventMonitor::Handler handler) override;
    void setWithheld(bool withheld) override;
    void setKeepsOwnStrokes(bool keeps) override;
    void setRecording(bool recording) override;
    /// Nobody is told: no program of a Wayland session has the keyboard to itself.
    void observeHold(std::function<void(bool held)> changed) override;

    // HotKeys
    void install(HotKeys::Handler pressed, HotKeys::Handler released) override;
    void observe(Observer observer) override;
    void request(const HotKeyRequest& request) override;
    void withdraw(HotKeyId id) override;
    HotKeyState state(HotKeyId id) const override;
    std::uint32_t lastPressTime() const override;

  private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace evdev
