// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktops/GnomeKeyBindings.h"
#include "platform/desktops/HotKeyBinder.h"
#include "platform/desktops/SessionBus.h"

/// Hot keys where GNOME gives programs none, as it did before 48: as custom key bindings among the settings
/// of its user, who has to agree. Each starts the program anew, which tells this one of the press.
///
/// GNOME tells neither how long a combination is held nor of its release: it starts the program again and
/// again, as the key repeats, and the release is guessed from the pause after the last time. It knows a
/// combination by what its key types in the layout in force.
///
/// One a process. All are taken out at the end; those of a process that is killed stay until the next one,
/// and start the program meanwhile.
class GnomeShortcuts final : public HotKeyBinder {
  public:
    struct Words {
        /// The combination as GTK writes it, first as it is in the layout in force, then as other names that
        /// GNOME knows the same keys by; empty if it has none.
        std::function<std::vector<std::string>(const KeyGrab& grab)> acceleratorsOf;
        /// What starts this program, as a shell would read it.
        std::string program;
        /// How long a key is held before it repeats.
        std::function<std::chrono::milliseconds()> repeatDelay;
    };
    /// A press is told to whoever has `service`, by the request's name.
    static constexpr const char* service = "example.orlen.Keyrill.HotKeys";
    static constexpr const char* object = "/example/orlen/Keyrill/HotKeys";
    static constexpr const char* face = "example.orlen.Keyrill.HotKeys";
    static constexpr const char* member = "Press";

    /// Whether the desktop on that bus is GNOME, with settings that can be written.
    static bool isThere(const SessionBus& bus);

    /// Takes out what a process before this one has left. `bus` outlives this.
    GnomeShortcuts(SessionBus& bus, Words words);
    ~GnomeShortcuts() override;
    GnomeShortcuts(const GnomeShortcuts&) = delete;
    GnomeShortcuts& operator=(const GnomeShortcuts&) = delete;

    // HotKeyBinder
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    void release(const KeyGrab& grab) override;
    /// GNOME is too slow to follow.
    bool canLift() const override { return false; }
    std::optional<Error> obstacleToAll() const override;
    bool needsConsent() const override { return true; }
    void setConsent(bool given) override { m_hasConsent = given; }
    bool takesSymbols() const override { return true; }
    void layoutChanged() override;
    int fileDescriptor() const override { return m_bus.fileDescriptor(); }
    /// A held combination is pressed again and again.
    std::optional<Event> nextEvent() override;

  private:
    using Source = std::unique_ptr<GSource, FreeBy<g_source_unref>>;
    struct Wish {
        KeyGrab grab;
        GnomeKeyBindings::Entry entry;
        /// It is in GNOME's settings.
        bool isWritten = false;
    };
    /// A combination that is held, or has just been.
    struct Held {
        GnomeShortcuts& owner;
        std::string name;
        KeyGrab grab;
        Source end;
    };

    class AtExit;

    void listen();
    void takeOut();
    void pressed(const std::string& name);
    void awaitEnd(Held& held, std::chrono::milliseconds patience);
    static gboolean hasEnded(void* held);
    std::string commandFor(const HotKeyRequest& request) const;
    void writeLater();
    static gboolean writeNow(void* self);
    void write();
    void settingsChanged();

    SessionBus& m_bus;
    Words m_words;
    GnomeKeyBindings m_settings;
    bool m_hasConsent = false;
    /// Something was refused that others may give free.
    bool m_hasRefused = false;
    /// By the names of their requests.
    std::map<std::string, Wish> m_wishes;
    std::map<std::string, Held> m_held;
    Source m_later;
    std::deque<Event> m_events;
};
