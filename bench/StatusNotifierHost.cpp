// SPDX-License-Identifier: MIT
#include "StatusNotifierHost.h"

#include <memory>
#include <stdexcept>

namespace {

/// Of an item that has not told how it looks.
constexpr std::chrono::milliseconds betweenQuestions{5};

constexpr const char* watcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* watcherPath = "/StatusNotifierWatcher";
constexpr const char* itemInterface = "org.kde.StatusNotifierItem";
constexpr const char* itemPath = "/StatusNotifierItem";

constexpr const char* introspection = R"(<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
</interface></node>)";

struct Unref {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
    void operator()(GDBusNodeInfo* info) const { g_dbus_node_info_unref(info); }
    void operator()(GError* error) const { g_error_free(error); }
};
using Variant = std::unique_ptr<GVariant, Unref>;

[[noreturn]] void fail(GError* error) {
    const std::unique_ptr<GError, Unref> owned(error);
    throw std::runtime_error(std::string("no panel on the session bus: ") +
                             (error != nullptr ? error->message : "its name is taken"));
}

bool hasContent(GVariant* properties, const char* name) {
    const Variant value(g_variant_lookup_value(properties, name, nullptr));
    if (!value) return false;
    if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING)) {
        return *g_variant_get_string(value.get(), nullptr) != '\0';
    }
    return g_variant_is_container(value.get()) != FALSE && g_variant_n_children(value.get()) > 0;
}

}  // namespace

StatusNotifierHost::StatusNotifierHost(const std::string& busAddress) : m_context(g_main_context_new()) {
    g_main_context_push_thread_default(m_context);
    GError* error = nullptr;
    m_bus = g_dbus_connection_new_for_address_sync(
        busAddress.c_str(),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, &error);
    if (m_bus == nullptr) fail(error);
    exportWatcher();
    takeName();
}

StatusNotifierHost::~StatusNotifierHost() {
    g_dbus_connection_unregister_object(m_bus, m_object);
    g_dbus_connection_close_sync(m_bus, nullptr, nullptr);
    g_object_unref(m_bus);
    // What is under way still points here.
    while (g_main_context_iteration(m_context, FALSE) != FALSE) continue;
    g_main_context_pop_thread_default(m_context);
    g_main_context_unref(m_context);
}

void StatusNotifierHost::exportWatcher() {
    static const GDBusInterfaceVTable table{call, property, nullptr, {}};
    GError* error = nullptr;
    const std::unique_ptr<GDBusNodeInfo, Unref> node(g_dbus_node_info_new_for_xml(introspection, &error));
    if (!node) fail(error);
    m_object = g_dbus_connection_register_object(m_bus, watcherPath, node->interfaces[0], &table, this,
                                                 nullptr, &error);
    if (m_object == 0) fail(error);
}

void StatusNotifierHost::takeName() {
    constexpr guint32 doNotQueue = 4;
    constexpr guint32 primaryOwner = 1;
    GError* error = nullptr;
    const Variant reply(g_dbus_connection_call_sync(
        m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", watcherName, doNotQueue), G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, &error));
    guint32 answer = 0;
    if (reply) g_variant_get(reply.get(), "(u)", &answer);
    if (answer != primaryOwner) fail(error);
}

void StatusNotifierHost::call(GDBusConnection* /*bus*/, const char* sender, const char* /*path*/,
                              const char* /*interface*/, const char* method, GVariant* arguments,
                              GDBusMethodInvocation* invocation, void* self) {
    auto& host = *static_cast<StatusNotifierHost*>(self);
    const char* item = nullptr;
    g_variant_get(arguments, "(&s)", &item);
    if (std::string(method) == "RegisterStatusNotifierItem" && host.m_owner.empty()) {
        // Some name the connection that has their item, others where it is on the one that calls.
        const bool isPath = *item == '/';
        host.m_owner = isPath ? sender : item;
        host.m_path = isPath ? item : itemPath;
        host.ask();
    }
    g_dbus_method_invocation_return_value(invocation, nullptr);
}

GVariant* StatusNotifierHost::property(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                                       const char* /*interface*/, const char* name, GError** /*error*/,
                                       void* /*self*/) {
    const std::string wanted = name;
    if (wanted == "IsStatusNotifierHostRegistered") return g_variant_new_boolean(TRUE);
    if (wanted == "ProtocolVersion") return g_variant_new_int32(0);
    return g_variant_new_strv(nullptr, 0);
}

void StatusNotifierHost::ask() {
    m_isAsked = true;
    g_dbus_connection_call(m_bus, m_owner.c_str(), m_path.c_str(), "org.freedesktop.DBus.Properties",
                           "GetAll", g_variant_new("(s)", itemInterface), G_VARIANT_TYPE("(a{sv})"),
                           G_DBUS_CALL_FLAGS_NONE, -1, nullptr, looksKnown, this);
}

void StatusNotifierHost::looksKnown(GObject* bus, GAsyncResult* result, void* self) {
    auto& host = *static_cast<StatusNotifierHost*>(self);
    host.m_isAsked = false;
    GError* error = nullptr;
    const Variant reply(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error));
    // Some register themselves before they can be asked.
    if (!reply) return g_error_free(error);
    const Variant looks(g_variant_get_child_value(reply.get(), 0));
    host.m_isShown = hasContent(looks.get(), "IconName") || hasContent(looks.get(), "IconPixmap");
}

bool StatusNotifierHost::waitForIcon(std::chrono::milliseconds deadline) {
    const auto end = std::chrono::steady_clock::now() + deadline;
    GSource* again = g_timeout_source_new(static_cast<guint>(betweenQuestions.count()));
    const GSourceFunc askAgain = [](void* self) -> gboolean {
        auto& host = *static_cast<StatusNotifierHost*>(self);
        if (!host.m_owner.empty() && !host.m_isAsked) host.ask();
        return G_SOURCE_CONTINUE;
    };
    g_source_set_callback(again, askAgain, this, nullptr);
    g_source_attach(again, m_context);
    while (!m_isShown && std::chrono::steady_clock::now() < end) g_main_context_iteration(m_context, TRUE);
    g_source_destroy(again);
    g_source_unref(again);
    return m_isShown;
}
