// SPDX-License-Identifier: MIT
#include "platform/linux/LoginSessionLock.h"

#include <utility>

namespace {

constexpr const char* service = "org.freedesktop.login1";
constexpr const char* sessionInterface = "org.freedesktop.login1.Session";
constexpr const char* propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr BusConnection::Method getSession{service, "/org/freedesktop/login1",
                                           "org.freedesktop.login1.Manager", "GetSession"};

}  // namespace

LoginSessionLock::LoginSessionLock(BusLoop& loop, const std::string& systemBus, std::string session)
    : m_session(std::move(session)),
      m_connection(
          loop, systemBus, [this] { findSession(); }, [this] { m_isLocked = false; }) {}

void LoginSessionLock::findSession() {
    m_connection.call(getSession, g_variant_new("(s)", m_session.c_str()), false,
                      [this](GDBusMessage* answer) {
                          if (answer == nullptr) return;
                          GVariant* body = g_dbus_message_get_body(answer);
                          if (body == nullptr || g_variant_is_of_type(body, G_VARIANT_TYPE("(o)")) == FALSE)
                              return;
                          const char* path = nullptr;
                          g_variant_get(body, "(&o)", &path);
                          watch(path);
                      });
}

void LoginSessionLock::watch(const std::string& path) {
    m_connection.hear(service, path.c_str(), sessionInterface, "Lock",
                      [this](const char* /*sender*/, GVariant* /*parameters*/) { m_isLocked = true; });
    m_connection.hear(service, path.c_str(), sessionInterface, "Unlock",
                      [this](const char* /*sender*/, GVariant* /*parameters*/) { m_isLocked = false; });
    m_connection.hear(service, path.c_str(), propertiesInterface, "PropertiesChanged",
                      [this](const char* /*sender*/, GVariant* parameters) {
                          if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(sa{sv}as)")) == FALSE) return;
                          const GVariantPointer changed(g_variant_get_child_value(parameters, 1));
                          takeProperties(changed.get());
                      });
    // After them, so that no change is missed.
    m_connection.call(
        {service, path.c_str(), propertiesInterface, "GetAll"}, g_variant_new("(s)", sessionInterface), false,
        [this](GDBusMessage* answer) {
            if (answer == nullptr) return;
            GVariant* body = g_dbus_message_get_body(answer);
            if (body == nullptr || g_variant_is_of_type(body, G_VARIANT_TYPE("(a{sv})")) == FALSE) return;
            const GVariantPointer all(g_variant_get_child_value(body, 0));
            takeProperties(all.get());
        });
}

void LoginSessionLock::takeProperties(GVariant* properties) {
    gboolean hint = FALSE;
    if (g_variant_lookup(properties, "LockedHint", "b", &hint) == TRUE) m_isLocked = hint == TRUE;
}
