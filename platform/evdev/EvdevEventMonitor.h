// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

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
struct GrabAnswer;
struct KeyGrab;

namespace evdev {

struct RepeatRule;

/// The keyboards of a Wayland session as the kernel shows them: the monitor of all key events, and the hot
/// keys in one order with it.
///
/// Keyboards are open while a macro is recorded or played, or a play waits for the modifiers of its hot key,
/// and only then; meanwhile hot keys come from the same stream, and of what the desktop tells of them
/// (desktopTells) only that counts which no open keyboard has told. At other times the desktop alone tells of
/// them. What a key means is told by the seat's keymap and layout, which others know: setKeymap(),
/// setLayout(), setRepeatRule().
///
/// Where the keyboards may not be read, the modifiers of a hot key that starts a playback are taken for held
/// until a quarter of a second after the desktop has told of its release.
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
        /// The layout that is locked, asked for when keyboards are opened; setLayout() tells of changes. The
        /// first if empty.
        std::function<std::uint32_t()> layout = {};
        /// Whether the desktop has gone, so that a run ends; empty if nobody knows.
        std::function<bool()> isDesktopLost = {};
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

    /// Has the monitor read what the desktop tells, also during a run: its dispatch() is to call the
    /// following, and lives as long as the monitor.
    void listenTo(EventSource& desktop);
    /// A combination which the grabber has taken is pressed, or released.
    void desktopTells(const KeyGrab& grab, bool press);
    /// The desktop's user has decided on a combination which the grabber has asked for.
    void desktopAnswers(const KeyGrab& grab, const GrabAnswer& answer);
    /// The desktop has forgotten all that the grabber has taken, so that it is taken again.
    void desktopForgot();

    /// The time now, by the clock of the events that it delivers.
    std::uint32_t eventTime() const;

    /// A playback ends where that answers true: the screen is locked, as others tell.
    void endPlaysWhen(std::function<bool()> endsPlays);

    /// What an injector needs while a run lasts. The keys that it presses are on no keyboard, and are known
    /// as soon as they are announced.
    RunWatch& runWatch();
    const KeyboardState& keyboard() const;

    // EventMonitor
    Result<void> install(EventMonitor::Handler handler) override;
    void setWithheld(bool withheld) override;
    void setKeepsOwnStrokes(bool keeps) override;
    void setShowsModifierKeys(bool shows) override;
    void setRecording(bool recording) override;
    /// Nobody is told: no program of a Wayland session has the keyboard to itself.
    void observeHold(std::function<void(bool held)> changed) override;
    void observeAccess(AccessObserver changed) override;
    WindowKeys* windowKeys() override;

    // HotKeys
    void install(HotKeys::Handler pressed, HotKeys::Handler released) override;
    void observe(Observer observer) override;
    void request(const HotKeyRequest& request) override { requestAll({request}); }
    void requestAll(const std::vector<HotKeyRequest>& requests) override;
    void withdraw(HotKeyId id) override;
    HotKeyState state(HotKeyId id) const override;
    bool needsConsent() const override;
    void setConsent(bool given) override;
    std::uint32_t lastPressTime() const override;

  private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace evdev
