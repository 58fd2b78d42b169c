// SPDX-License-Identifier: MIT
//
// keyrill-portal TOKENFILE PATIENCE REST: presses keys by the desktop's portal, for the one at the other end
// of standard input (PortalMessage.h). It outlives that one, and puts right what is left then, keys that are
// down and a layout that is not the user's: the desktop would not. PATIENCE is for the user's answer, REST
// for how long the permission is kept unused; both in seconds.
#include <glib-unix.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>

#include "platform/desktops/portal/PortalSession.h"

namespace {

/// It ends with its loop.
class Portal {
  public:
    Portal(PortalSession::Options options, unsigned rest)
        : m_rest(rest), m_session(std::move(options), [this](PortalAnswer answer) { say(answer); }) {}

    void run() {
        g_unix_fd_add(STDIN_FILENO, static_cast<GIOCondition>(G_IO_IN | G_IO_HUP | G_IO_ERR), hear, this);
        g_main_loop_run(m_loop);
    }

  private:
    static gboolean hear(int fileDescriptor, GIOCondition /*condition*/, void* self) {
        auto& portal = *static_cast<Portal*>(self);
        PortalMessage message{};
        if (recv(fileDescriptor, &message, sizeof message, 0) != sizeof message) {
            g_main_loop_quit(portal.m_loop);
            return G_SOURCE_REMOVE;
        }
        portal.obey(message);
        return G_SOURCE_CONTINUE;
    }

    void obey(const PortalMessage& message) {
        if (m_timer != 0) g_source_remove(std::exchange(m_timer, 0));
        switch (message.kind) {
            case PortalMessage::Kind::open:
                return m_session.open();
            case PortalMessage::Kind::press:
                return m_session.key(message.keycode, true);
            case PortalMessage::Kind::release:
                return m_session.key(message.keycode, false);
            case PortalMessage::Kind::sync:
                return m_session.synchronise();
            case PortalMessage::Kind::leave:
                return m_session.setHomeLayout(message.layout);
            case PortalMessage::Kind::home:
                return m_session.setHomeLayout({});
            case PortalMessage::Kind::rest:
                m_session.keepLocks();
                m_timer = g_timeout_add_seconds(m_rest, hasRested, this);
        }
    }

    static gboolean hasRested(void* self) {
        auto& portal = *static_cast<Portal*>(self);
        portal.m_timer = 0;
        g_main_loop_quit(portal.m_loop);
        return G_SOURCE_REMOVE;
    }

    void say(PortalAnswer answer) {
        send(STDIN_FILENO, &answer, sizeof answer, MSG_NOSIGNAL);
        if (answer != PortalAnswer::opened && answer != PortalAnswer::synced) g_main_loop_quit(m_loop);
    }

    const std::unique_ptr<GMainLoop, decltype(&g_main_loop_unref)> m_owned{g_main_loop_new(nullptr, FALSE),
                                                                           g_main_loop_unref};
    GMainLoop* const m_loop = m_owned.get();
    unsigned m_rest;
    guint m_timer = 0;
    PortalSession m_session;
};

}  // namespace

int main(int count, char** values) {
    constexpr int wanted = 4;
    constexpr int decimal = 10;
    if (count != wanted) return 2;
    const auto seconds = [&](int place) {
        return static_cast<unsigned>(std::strtoul(values[place], nullptr, decimal));
    };
    Portal({.tokenFile = values[1], .patience = seconds(2)}, seconds(3)).run();
    return 0;
}
