// SPDX-License-Identifier: MIT
#include "access/BusCall.h"

#include <memory>

namespace keyaccess {

namespace {

using Answered = std::function<void(GVariant*)>;

void onAnswer(GObject* bus, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Answered> answered(static_cast<Answered*>(data));
    g_autoptr(GVariant) answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), result, nullptr);
    (*answered)(answer);
}

}  // namespace

void callMethod(GDBusConnection* bus, const Method& method, GVariant* parameters, Answered answered) {
    g_dbus_connection_call(bus, method.name, method.path.c_str(), method.interface, method.member, parameters,
                           G_VARIANT_TYPE(method.answerType), G_DBUS_CALL_FLAGS_NONE, G_MAXINT, nullptr,
                           onAnswer, new Answered(std::move(answered)));
}

}  // namespace keyaccess
