// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <bitset>
#include <functional>
#include <optional>
#include <string>

#include "platform/desktops/portal/PortalMessage.h"
#include "platform/desktops/portal/PortalRequest.h"
#include "platform/desktops/portal/SessionEnd.h"
#include "platform/linux/BusContext.h"

/// A session of the portal that presses keys (org.freedesktop.portal.RemoteDesktop), on the process's session
/// bus and in its default main context.
class PortalSession {
  public:
    struct Options {
        /// Where the desktop's word stands by which it knows a permission again; may be empty.
        std::string tokenFile;
        /// How long the user may think, in seconds. The desktop's own answers take ten at the most.
        unsigned patience = 0;
    };
    /// `answer` is told what becomes of it.
    PortalSession(Options options, std::function<void(PortalAnswer)> answer);
    ~PortalSession();
    PortalSession(const PortalSession&) = delete;
    PortalSession& operator=(const PortalSession&) = delete;

    /// Asks the desktop, in the background, unless that has been done.
    void open();
    /// Waits until the portal has taken it.
    void key(std::uint16_t keycode, bool press);
    /// Waits until the part of the desktop that presses keys has taken all of them.
    void synchronise();
    /// What is locked is as it was wanted: close() leaves it so.
    void keepLocks() { m_switched.reset(); }
    /// Which layout of KDE's close() puts in force; none if empty.
    void setHomeLayout(std::optional<std::uint32_t> layout) { m_homeLayout = layout; }
    /// Releases what is down, puts locks back that were switched since, and the layout, and gives the
    /// permission back. Also after a failure, as long as there is a session: a desktop that was slow may have
    /// taken all. Where KDE's portal has died it is done by another session, unless the user would be asked
    /// for that: KWin 5.27 keeps down what that portal has pressed. What was not known to have been passed on
    /// by then is released once more.
    void close();

  private:
    /// The version since which a permission can be known again.
    static constexpr std::uint32_t withTokens = 2;

    enum class State { closed, creating, selecting, starting, open };

    static void portalCame(GDBusConnection* bus, const char* name, const char* owner, void* self);
    static void portalGone(GDBusConnection* bus, const char* name, void* self);
    static void kdeCame(GDBusConnection* bus, const char* name, const char* owner, void* self);
    static void kdeGone(GDBusConnection* bus, const char* name, void* self);

    GVariantPointer property(const char* name) const;
    void request(const char* member, State state, GVariantBuilder& options, unsigned patience);
    void responded(PortalRequest::End end, GVariant* results);
    void select();
    void start();
    void started(GVariant* results);
    bool notify(std::uint16_t keycode, bool press);
    std::string ownerOf(const char* name) const;
    bool isOrphaned() const;
    void watch();
    void unwatch();
    void putBack();
    bool asksNobody() const { return m_version < withTokens || !token().empty(); }
    void putBackByAnother();
    void putLayoutBack();
    void lose();
    void leaveTheDead();
    void die();
    void fail(PortalAnswer why);
    GVariantPointer call(const char* path, const char* face, const char* member, GVariant* parameters) const;
    std::string token() const;
    void keepToken(GVariant* results) const;

    Options m_options;
    std::function<void(PortalAnswer)> m_answer;
    GObjectPointer<GDBusConnection> m_bus;
    State m_state = State::closed;
    std::uint32_t m_version = 0;
    /// Whether the portal knows which devices there are.
    bool m_promisesKeyboards = false;
    std::string m_session;
    PortalRequest m_request;
    SessionEnd m_end;
    guint m_watch = 0;
    guint m_kdeWatch = 0;
    /// Whose portal it is, and whose KDE's part of it, as the bus calls them; the latter is empty elsewhere.
    std::string m_portal;
    std::string m_kde;
    /// The portal has ended, or KDE's part of it.
    bool m_hasDied = false;
    std::bitset<65536> m_down;
    /// What the portal has taken, and may not have passed on.
    std::bitset<65536> m_underway;
    /// Keys of locks that have been pressed an odd number of times.
    std::bitset<65536> m_switched;
    std::optional<std::uint32_t> m_homeLayout;
};
