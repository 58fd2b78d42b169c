// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktops/HotKeyBinder.h"
#include "platform/desktops/SessionBus.h"

/// Combinations that KDE takes from all programs and tells of (KGlobalAccel, which KWin itself is in a
/// Wayland session). It knows them by what the key types, so each layout's is asked for; what it has given
/// somebody else, himself included, it does not give.
///
/// The user sees them in the system's settings. At the end they are given free there, and stand there until
/// the next start; so do those of a process that is killed, whose keys go nowhere until then.
class KdeShortcuts final : public HotKeyBinder {
  public:
    struct Combination {
        /// Qt's numbers (keymap/QtKeys.h), any of which is the combination.
        std::vector<std::int32_t> keys;
        /// As the user sees it in the system's settings: "Ctrl+Super+R".
        std::string name;
    };
    using Describes = std::function<Combination(const KeyGrab& grab)>;

    /// Whether a desktop on that bus gives such combinations.
    static bool isThere(const SessionBus& bus);

    /// Why a combination could not be had, as that of grab(): somebody else has it. Nothing is asked for.
    static std::optional<std::string> obstacleTo(const Combination& combination, const SessionBus& bus);

    /// Takes back what a process before this one has left. `bus` outlives this.
    KdeShortcuts(SessionBus& bus, Describes describes);
    ~KdeShortcuts() override;
    KdeShortcuts(const KdeShortcuts&) = delete;
    KdeShortcuts& operator=(const KdeShortcuts&) = delete;

    // HotKeyBinder
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    void release(const KeyGrab& grab) override;
    bool takesSymbols() const override { return true; }
    int fileDescriptor() const override { return m_bus.fileDescriptor(); }
    /// A held combination is pressed again and again. It is up as soon as any of its keys is.
    std::optional<Event> nextEvent() override;

  private:
    using Place = std::pair<std::uint8_t, std::uint16_t>;

    void listen();
    void sweep() const;
    /// The keys that it has now.
    Result<std::vector<std::int32_t>> bind(const Place& place, const Combination& combination) const;
    void unbind(const Place& place) const;
    void heard(GVariant* parameters, Event::Kind kind);
    void forget();

    SessionBus& m_bus;
    Describes m_describes;
    std::map<Place, Combination> m_bound;
    std::deque<Event> m_events;
};
