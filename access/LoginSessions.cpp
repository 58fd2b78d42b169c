// SPDX-License-Identifier: MIT
#include "access/LoginSessions.h"

#include <utility>

#include "access/BusCall.h"

namespace keyaccess {

namespace {

constexpr const char* logind = "org.freedesktop.login1";
constexpr const char* managerPath = "/org/freedesktop/login1";
constexpr const char* manager = "org.freedesktop.login1.Manager";
constexpr const char* sessionInterface = "org.freedesktop.login1.Session";
constexpr const char* properties = "org.freedesktop.DBus.Properties";

bool flag(GVariant* values, const char* name, bool missing) {
    gboolean value = FALSE;
    return g_variant_lookup(values, name, "b", &value) == TRUE ? value == TRUE : missing;
}

/// What cannot be seen counts as the worse.
bool isUsable(GVariant* values, std::uint32_t user) {
    guint32 owner = 0;
    if (g_variant_lookup(values, "User", "(uo)", &owner, nullptr) == FALSE || owner != user) return false;
    return flag(values, "Active", false) && !flag(values, "Remote", true) &&
           !flag(values, "LockedHint", false);
}

}  // namespace

LoginSessions::LoginSessions(GDBusConnection* bus) : m_bus(bus) {
    m_properties = g_dbus_connection_signal_subscribe(bus, logind, properties, "PropertiesChanged", nullptr,
                                                      sessionInterface, G_DBUS_SIGNAL_FLAGS_NONE,
                                                      onProperties, this, nullptr);
    m_removed =
        g_dbus_connection_signal_subscribe(bus, logind, manager, "SessionRemoved", managerPath, nullptr,
                                           G_DBUS_SIGNAL_FLAGS_NONE, onRemoved, this, nullptr);
    m_owner = g_dbus_connection_signal_subscribe(bus, "org.freedesktop.DBus", "org.freedesktop.DBus",
                                                 "NameOwnerChanged", "/org/freedesktop/DBus", logind,
                                                 G_DBUS_SIGNAL_FLAGS_NONE, onOwner, this, nullptr);
}

LoginSessions::~LoginSessions() {
    for (const guint subscription : {m_properties, m_removed, m_owner}) {
        g_dbus_connection_signal_unsubscribe(m_bus, subscription);
    }
}

void LoginSessions::find(const std::string& caller, Found found) const {
    callMethod(m_bus,
               {"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionCredentials", "(a{sv})"},
               g_variant_new("(s)", caller.c_str()), [this, found = std::move(found)](GVariant* answer) {
                   Identity who;
                   if (answer == nullptr) return found(std::nullopt);
                   g_autoptr(GVariant) values = g_variant_get_child_value(answer, 0);
                   const bool known = g_variant_lookup(values, "UnixUserID", "u", &who.user) == TRUE &&
                                      g_variant_lookup(values, "ProcessID", "u", &who.process) == TRUE;
                   known ? findSession(who, found) : found(std::nullopt);
               });
}

void LoginSessions::findSession(Identity who, Found found) const {
    callMethod(m_bus, {logind, managerPath, manager, "GetSessionByPID", "(o)"},
               g_variant_new("(u)", who.process),
               [this, who, found = std::move(found)](GVariant* answer) mutable {
                   if (answer == nullptr) return findDisplay(who, found);
                   const char* path = nullptr;
                   g_variant_get(answer, "(&o)", &path);
                   who.session = path;
                   found(who);
               });
}

void LoginSessions::findDisplay(const Identity& who, const Found& found) const {
    const auto displayOf = [this, who, found](GVariant* answer) {
        if (answer == nullptr) return found(std::nullopt);
        const char* user = nullptr;
        g_variant_get(answer, "(&o)", &user);
        callMethod(m_bus, {logind, user, properties, "Get", "(v)"},
                   g_variant_new("(ss)", "org.freedesktop.login1.User", "Display"),
                   [who, found](GVariant* display) {
                       if (display == nullptr) return found(std::nullopt);
                       g_autoptr(GVariant) value = nullptr;
                       g_variant_get(display, "(v)", &value);
                       const char* path = nullptr;
                       if (g_variant_is_of_type(value, G_VARIANT_TYPE("(so)")) == FALSE)
                           return found(std::nullopt);
                       g_variant_get(value, "(&s&o)", nullptr, &path);
                       Identity known = who;
                       known.session = path;
                       found(known);
                   });
    };
    callMethod(m_bus, {logind, managerPath, manager, "GetUser", "(o)"}, g_variant_new("(u)", who.user),
               displayOf);
}

void LoginSessions::check(const Identity& who, std::function<void(bool)> checked) const {
    callMethod(m_bus, {logind, who.session, properties, "GetAll", "(a{sv})"},
               g_variant_new("(s)", sessionInterface),
               [user = who.user, checked = std::move(checked)](GVariant* answer) {
                   if (answer == nullptr) return checked(false);
                   g_autoptr(GVariant) values = g_variant_get_child_value(answer, 0);
                   checked(isUsable(values, user));
               });
}

void LoginSessions::onProperties(GDBusConnection* /*bus*/, const char* /*sender*/, const char* path,
                                 const char* /*interface*/, const char* /*signal*/, GVariant* parameters,
                                 gpointer self) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(sa{sv}as)")) == FALSE) return;
    g_autoptr(GVariant) values = g_variant_get_child_value(parameters, 1);
    g_autofree const char** unknown = nullptr;
    g_variant_get_child(parameters, 2, "^a&s", &unknown);
    const bool isUnknown =
        g_strv_contains(unknown, "Active") == TRUE || g_strv_contains(unknown, "LockedHint") == TRUE;
    if (isUnknown || !flag(values, "Active", true) || flag(values, "LockedHint", false)) {
        static_cast<LoginSessions*>(self)->m_ended(path);
    }
}

void LoginSessions::onRemoved(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                              const char* /*interface*/, const char* /*signal*/, GVariant* parameters,
                              gpointer self) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(so)")) == FALSE) return;
    const char* session = nullptr;
    g_variant_get(parameters, "(&s&o)", nullptr, &session);
    static_cast<LoginSessions*>(self)->m_ended(session);
}

/// Without logind nobody tells which session is in front.
void LoginSessions::onOwner(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                            const char* /*interface*/, const char* /*signal*/, GVariant* parameters,
                            gpointer self) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(sss)")) == FALSE) return;
    const char* before = nullptr;
    g_variant_get(parameters, "(&s&s&s)", nullptr, &before, nullptr);
    if (*before != '\0') static_cast<LoginSessions*>(self)->m_ended({});
}

}  // namespace keyaccess
