// SPDX-License-Identifier: MIT
#include "compositor/BusClient.h"

#include <gio/gunixfdlist.h>

#include <stdexcept>

namespace {

constexpr int patience = 20'000;

void check(const void* result, GError* error) {
    if (result != nullptr) return;
    const std::string why = error->message;
    g_error_free(error);
    throw std::runtime_error(why);
}

}  // namespace

BusClient::BusClient(const std::string& address) {
    GError* error = nullptr;
    m_bus.reset(g_dbus_connection_new_for_address_sync(
        address.c_str(),
        GDBusConnectionFlags(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, &error));
    check(m_bus.get(), error);
}

BusClient::Value BusClient::call(const Method& method, GVariant* parameters, const char* type) const {
    GError* error = nullptr;
    Value answer(g_dbus_connection_call_sync(
        m_bus.get(), method.name, method.object, method.interface, method.member, parameters,
        type == nullptr ? nullptr : G_VARIANT_TYPE(type), G_DBUS_CALL_FLAGS_NONE, patience, nullptr, &error));
    check(answer.get(), error);
    return answer;
}

BusClient::Value BusClient::callWithFile(const Method& method, GVariant* parameters, int file,
                                         const char* type) const {
    GError* error = nullptr;
    GUnixFDList* const files = g_unix_fd_list_new();
    g_unix_fd_list_append(files, file, nullptr);
    Value answer(g_dbus_connection_call_with_unix_fd_list_sync(
        m_bus.get(), method.name, method.object, method.interface, method.member, parameters,
        G_VARIANT_TYPE(type), G_DBUS_CALL_FLAGS_NONE, patience, files, nullptr, nullptr, &error));
    g_object_unref(files);
    check(answer.get(), error);
    return answer;
}
