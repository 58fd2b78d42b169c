// SPDX-License-Identifier: MIT
#include "platform/desktops/portal/SessionEnd.h"

#include <utility>

#include "platform/desktops/portal/PortalNames.h"

void SessionEnd::follow(GDBusConnection* bus, const std::string& session, std::function<void()> closed) {
    stop();
    m_bus.reset(G_DBUS_CONNECTION(g_object_ref(bus)));
    m_closed = std::move(closed);
    m_subscription = g_dbus_connection_signal_subscribe(bus, portalnames::service, portalnames::session,
                                                        "Closed", session.c_str(), nullptr,
                                                        G_DBUS_SIGNAL_FLAGS_NONE, heard, this, nullptr);
}

void SessionEnd::stop() {
    if (m_subscription == 0) return;
    g_dbus_connection_signal_unsubscribe(m_bus.get(), std::exchange(m_subscription, 0));
    m_bus.reset();
}

/// A copy: it may be stopped, and another session be followed, from within.
void SessionEnd::heard(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                       const char* /*interface*/, const char* /*member*/, GVariant* /*parameters*/,
                       void* self) {
    const std::function<void()> closed = static_cast<SessionEnd*>(self)->m_closed;
    closed();
}
