// SPDX-License-Identifier: MIT
#include "platform/desktops/portal/PortalRequest.h"

#include <algorithm>
#include <utility>

#include "platform/desktops/portal/PortalNames.h"

namespace {

constexpr const char* face = "org.freedesktop.portal.Request";

/// So that no two have one name.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): counted for the process.
unsigned requestsOfProcess = 0;

}  // namespace

/// Some say it as a text, some as a path.
std::optional<std::string> portalSessionIn(GVariant* results) {
    const GVariantPointer value(g_variant_lookup_value(results, "session_handle", nullptr));
    const bool isText = value && (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_STRING) == TRUE ||
                                  g_variant_is_of_type(value.get(), G_VARIANT_TYPE_OBJECT_PATH) == TRUE);
    if (!isText) return std::nullopt;
    const char* const path = g_variant_get_string(value.get(), nullptr);
    return g_variant_is_object_path(path) == TRUE ? std::optional<std::string>(path) : std::nullopt;
}

GVariantBuilder portalOptions() {
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
    return builder;
}

void PortalRequest::begin(GDBusConnection* bus, const Call& call, GVariantBuilder& options, Ended ended) {
    stop();
    m_bus.reset(G_DBUS_CONNECTION(g_object_ref(bus)));
    m_cancellable.reset(g_cancellable_new());
    m_ended = std::move(ended);
    const std::string token = listen();
    g_variant_builder_add(&options, "{sv}", "handle_token", g_variant_new_string(token.c_str()));
    m_timer = g_timeout_source_new_seconds(call.patience);
    g_source_set_callback(m_timer, tooLate, this, nullptr);
    g_source_attach(m_timer, g_main_context_get_thread_default());
    g_dbus_connection_call(bus, portalnames::service, portalnames::object, call.interface, call.member,
                           call.parameters(&options), nullptr, G_DBUS_CALL_FLAGS_NONE, G_MAXINT,
                           m_cancellable.get(), called, this);
}

/// Before the call: the answer may come with it.
std::string PortalRequest::listen() {
    std::string sender = g_dbus_connection_get_unique_name(m_bus.get());
    sender.erase(0, 1);
    std::replace(sender.begin(), sender.end(), '.', '_');
    std::string token = "keyrill" + std::to_string(++requestsOfProcess);
    m_path = portalnames::object;
    m_path.append("/request/").append(sender).append("/").append(token);
    m_response = g_dbus_connection_signal_subscribe(m_bus.get(), portalnames::service, face, "Response",
                                                    m_path.c_str(), nullptr, G_DBUS_SIGNAL_FLAGS_NONE, heard,
                                                    this, nullptr);
    return token;
}

/// What the desktop asks its user meanwhile it need ask no more.
void PortalRequest::stop() {
    if (m_response == 0) return;
    forget();
    g_dbus_connection_call(m_bus.get(), portalnames::service, m_path.c_str(), face, "Close", nullptr, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, nullptr, nullptr, nullptr);
}

void PortalRequest::forget() {
    g_cancellable_cancel(m_cancellable.get());
    g_dbus_connection_signal_unsubscribe(m_bus.get(), std::exchange(m_response, 0));
    g_source_destroy(m_timer);
    g_source_unref(std::exchange(m_timer, nullptr));
    m_ended = {};
}

void PortalRequest::end(End end, GVariant* results) {
    const Ended ended = std::move(m_ended);
    forget();
    ended(end, results);
}

gboolean PortalRequest::tooLate(void* self) {
    auto& request = *static_cast<PortalRequest*>(self);
    const Ended ended = std::move(request.m_ended);
    request.stop();
    ended(End::silent, nullptr);
    return G_SOURCE_REMOVE;
}

void PortalRequest::called(GObject* bus, GAsyncResult* result, void* self) {
    GError* error = nullptr;
    const GVariantPointer handle(g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, &error));
    if (handle) return;
    const GFailure failure(error);
    // One that has been stopped may be gone.
    if (g_error_matches(failure.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED) == TRUE) return;
    static_cast<PortalRequest*>(self)->end(End::failed, nullptr);
}

void PortalRequest::heard(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
                          const char* /*interface*/, const char* /*member*/, GVariant* parameters,
                          void* self) {
    constexpr std::uint32_t byUser = 1;
    auto& request = *static_cast<PortalRequest*>(self);
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(ua{sv})")) == FALSE) {
        return request.end(End::failed, nullptr);
    }
    std::uint32_t code = 0;
    GVariant* results = nullptr;
    g_variant_get(parameters, "(u@a{sv})", &code, &results);
    const GVariantPointer owned(results);
    const End other = code == byUser ? End::refused : End::failed;
    request.end(code == 0 ? End::agreed : other, results);
}
