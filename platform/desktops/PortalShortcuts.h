// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "platform/desktops/HotKeyBinder.h"
#include "platform/desktops/SessionBus.h"
#include "platform/desktops/portal/PortalRequest.h"
#include "platform/desktops/portal/SessionEnd.h"

/// Hot keys by the desktop's portal (org.freedesktop.portal.GlobalShortcuts), as GNOME has them from 48 on.
///
/// It is told what each does and which combination we would like; the user decides, when the desktop asks him
/// for the first time and later in its settings, and the desktop knows them again by their names. What it
/// leaves out of its answer is refused. It asks for all in one session, and in another one when a name comes
/// that is not in that; what has been decided is not asked for again.
///
/// A portal that dies is asked again once another one comes in its place, and asked to come.
class PortalShortcuts final : public HotKeyBinder {
  public:
    struct Words {
        /// The combination as the shortcuts standard of freedesktop.org writes it ("CTRL+LOGO+r"); empty
        /// if it has no name.
        std::function<std::string(const KeyGrab& grab)> triggerOf;
        /// The combination, without locks, that the desktop's words for it mean; empty if that is not known.
        std::function<std::optional<KeyGrab>(const std::string& words)> meaningOf;
    };
    struct Patience {
        /// With what the desktop answers itself, and with its user.
        std::chrono::seconds desktop{10};
        std::chrono::seconds user{120};
    };

    /// Whether the desktop on that bus has such a portal, GNOME one of its own. Starts it if need be, and
    /// waits for it.
    static bool isThere(const SessionBus& bus);

    /// `bus` outlives this.
    PortalShortcuts(SessionBus& bus, Words words) : PortalShortcuts(bus, std::move(words), Patience{}) {}
    PortalShortcuts(SessionBus& bus, Words words, Patience patience);
    /// Ends the session, and with it the combinations.
    ~PortalShortcuts() override;
    PortalShortcuts(const PortalShortcuts&) = delete;
    PortalShortcuts& operator=(const PortalShortcuts&) = delete;

    // HotKeyBinder
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    void release(const KeyGrab& grab) override;
    bool isDecidedByUser() const override { return true; }
    int fileDescriptor() const override { return m_bus.fileDescriptor(); }
    /// Some desktops tell of a held one again and again.
    std::optional<Event> nextEvent() override;

  private:
    /// From idle by begin() to asking, by the desktop's consent to bound, by its refusal or its failure to
    /// idle again.
    enum class State { idle, asking, bound };
    struct Wish {
        KeyGrab grab;
        std::string title;
        /// Which combination we would like.
        std::string trigger;
        bool isAnswered = false;
    };
    /// What the desktop was asked for last, and what it has said.
    struct Asked {
        std::string trigger;
        std::optional<std::string> refusal;
        std::string words = {};
    };

    void listen();
    void considerLater();
    static gboolean considerNow(void* self);
    /// Asks the desktop, unless it has decided on all that is wished, and tells what it has decided.
    void consider();
    bool isAnotherSessionNeeded() const;
    bool isAskedFor(const std::string& name, const Wish& wish) const;
    void tell(const std::string& name, Wish& wish);
    void begin();
    void create();
    void created(PortalRequest::End end, GVariant* results);
    void bind();
    void bound(PortalRequest::End end, GVariant* results);
    void take(GVariant* shortcuts);
    void endBecause(const std::string& why);
    void refuseWhatWasAsked(const std::string& why);
    void closeSession();
    void forget();
    void heard(GVariant* parameters, Event::Kind kind);
    void changed(GVariant* parameters);
    void closed();
    void ownerChanged(bool wasThere, bool isThere);

    SessionBus& m_bus;
    Words m_words;
    Patience m_patience;
    State m_state = State::idle;
    PortalRequest m_request;
    std::unique_ptr<GSource, FreeBy<g_source_unref>> m_later;
    std::string m_session;
    SessionEnd m_end;
    /// How many there have been.
    unsigned m_sessions = 0;
    /// The portal has failed, not the user refused.
    bool m_isPortalAtFault = false;
    /// By their names.
    std::map<std::string, Wish> m_wishes;
    std::map<std::string, Asked> m_asked;
    std::deque<Event> m_events;
};
