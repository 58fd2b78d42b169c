// SPDX-License-Identifier: MIT
#include "platform/linux/BusConnection.h"

#include <chrono>
#include <limits>
#include <memory>
#include <utility>

namespace {

/// After the bus has died: in most sessions none comes again.
constexpr std::chrono::milliseconds betweenRetries{2000};

template <typename Function>
void freeFunction(void* function) {
    const std::unique_ptr<Function> owned(static_cast<Function*>(function));
}

void onAnswer(GObject* source, GAsyncResult* result, void* function) {
    const std::unique_ptr<BusConnection::Answered> answered(static_cast<BusConnection::Answered*>(function));
    // Fails when the connection is given up, too; then whoever waited may be gone.
    const GObjectPointer<GDBusMessage> answer(
        g_dbus_connection_send_message_with_reply_finish(G_DBUS_CONNECTION(source), result, nullptr));
    if (!answer) return;
    const bool isError = g_dbus_message_get_message_type(answer.get()) != G_DBUS_MESSAGE_TYPE_METHOD_RETURN;
    (*answered)(isError ? nullptr : answer.get());
}

void onSignal(GDBusConnection* /*connection*/, const char* sender, const char* /*path*/,
              const char* /*interface*/, const char* /*member*/, GVariant* parameters, void* function) {
    (*static_cast<BusConnection::Heard*>(function))(sender, parameters);
}

}  // namespace

BusConnection::BusConnection(BusLoop& loop, std::string address, std::function<void()> opened,
                             std::function<void()> ended)
    : m_loop(loop),
      m_address(std::move(address)),
      m_opened(std::move(opened)),
      m_ended(std::move(ended)),
      m_cancellable(g_cancellable_new()) {
    if (!m_address.empty()) open();
}

void BusConnection::open() {
    m_isOpening = true;
    constexpr auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    const BusLoop::Context::Scope scope(m_loop);
    g_dbus_connection_new_for_address(m_address.c_str(), flags, nullptr, m_cancellable.get(), onOpened, this);
}

void BusConnection::retryLater() {
    m_retry.reset(g_timeout_source_new(static_cast<guint>(betweenRetries.count())));
    g_source_set_callback(m_retry.get(), onRetry, this, nullptr);
    g_source_attach(m_retry.get(), m_loop.context().get());
}

gboolean BusConnection::onRetry(void* self) {
    static_cast<BusConnection*>(self)->open();
    return G_SOURCE_REMOVE;
}

BusConnection::~BusConnection() {
    if (m_retry) g_source_destroy(m_retry.get());
    g_cancellable_cancel(m_cancellable.get());
    while (m_isOpening) g_main_context_iteration(m_loop.context().get(), TRUE);
    if (!m_connection) return;
    g_signal_handlers_disconnect_by_data(m_connection.get(), this);
    for (const guint heard : m_heard) g_dbus_connection_signal_unsubscribe(m_connection.get(), heard);
    g_dbus_connection_close(m_connection.get(), nullptr, nullptr, nullptr);
}

void BusConnection::onOpened(GObject* /*source*/, GAsyncResult* result, void* self) {
    auto& connection = *static_cast<BusConnection*>(self);
    connection.m_isOpening = false;
    connection.m_connection.reset(g_dbus_connection_new_for_address_finish(result, nullptr));
    if (g_cancellable_is_cancelled(connection.m_cancellable.get()) == TRUE) return;
    if (!connection.m_connection) {
        if (connection.m_hasBeenOpen) connection.retryLater();
        connection.m_ended();
        return;
    }
    connection.m_hasBeenOpen = true;
    g_dbus_connection_set_exit_on_close(connection.get(), FALSE);
    g_signal_connect(connection.get(), "closed", G_CALLBACK(onClosed), self);
    connection.m_opened();
}

void BusConnection::onClosed(GDBusConnection* /*connection*/, gboolean /*vanished*/, GError* /*error*/,
                             void* self) {
    auto& connection = *static_cast<BusConnection*>(self);
    connection.m_heard.clear();
    // Not within its own signal's last reference.
    const GObjectPointer<GDBusConnection> gone = std::move(connection.m_connection);
    g_signal_handlers_disconnect_by_data(gone.get(), self);
    connection.retryLater();
    connection.m_ended();
}

void BusConnection::call(const Method& method, GVariant* parameters, bool starts, Answered answered) {
    const GObjectPointer<GDBusMessage> message(
        g_dbus_message_new_method_call(method.name, method.path, method.interface, method.member));
    if (parameters != nullptr) g_dbus_message_set_body(message.get(), parameters);
    if (!starts) g_dbus_message_set_flags(message.get(), G_DBUS_MESSAGE_FLAGS_NO_AUTO_START);
    const BusLoop::Context::Scope scope(m_loop);
    g_dbus_connection_send_message_with_reply(get(), message.get(), G_DBUS_SEND_MESSAGE_FLAGS_NONE,
                                              std::numeric_limits<int>::max(), nullptr, m_cancellable.get(),
                                              onAnswer, new Answered(std::move(answered)));
}

void BusConnection::hear(const char* sender, const char* path, const char* interface, const char* member,
                         Heard heard, const char* about) {
    const BusLoop::Context::Scope scope(m_loop);
    m_heard.push_back(g_dbus_connection_signal_subscribe(get(), sender, interface, member, path, about,
                                                         G_DBUS_SIGNAL_FLAGS_NONE, onSignal,
                                                         new Heard(std::move(heard)), freeFunction<Heard>));
}
