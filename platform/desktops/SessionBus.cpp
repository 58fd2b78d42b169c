// SPDX-License-Identifier: MIT
#include "platform/desktops/SessionBus.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

#include "platform/Sentence.h"
#include "platform/linux/BusAddresses.h"

namespace {

constexpr int patience = 2000;
constexpr const char* theBus = "org.freedesktop.DBus";
constexpr const char* theBusObject = "/org/freedesktop/DBus";

/// In milliseconds. At log-in much is started at once, and waited for; one that never comes is waited for
/// once.
int patienceWithStart(const char* name) {
    using Clock = std::chrono::steady_clock;
    static std::map<std::string, Clock::time_point> ends;
    const Clock::time_point now = Clock::now();
    const Clock::time_point end = ends.try_emplace(name, now + std::chrono::seconds(25)).first->second;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - now);
    return std::max(patience, static_cast<int>(left.count()));
}

Error noBus() {
    return {sentence("Session", "There is no session bus."), sentence("Session", "Log in again.")};
}

const char* orAny(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

/// GDBus has let through only what the interface describes.
void onCall(GDBusConnection* /*connection*/, const char* caller, const char* /*path*/,
            const char* /*interface*/, const char* /*member*/, GVariant* parameters,
            GDBusMethodInvocation* invocation, void* called) {
    const char* text = nullptr;
    g_variant_get(parameters, "(&s)", &text);
    const std::string copy = text;
    const std::string sender = caller == nullptr ? "" : caller;
    g_dbus_method_invocation_return_value(invocation, nullptr);
    (*static_cast<SessionBus::Called*>(called))(sender, copy);
}

void freeCalled(void* called) { delete static_cast<SessionBus::Called*>(called); }

}  // namespace

std::string SessionBus::addressOfProcess() { return busAddresses(environmentOfProcess()).session; }

SessionBus::SessionBus(const std::string& address)
    : m_connection(
          m_loop, address, [this] { opened(); }, [] {}) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(patience);
    for (m_loop.update(); m_connection.isOpening() && std::chrono::steady_clock::now() < end;
         m_loop.update()) {
        pollfd entry{.fd = m_loop.fileDescriptor(), .events = POLLIN, .revents = 0};
        poll(&entry, 1, patience);
    }
}

void SessionBus::opened() {
    for (const Hearing& hearing : m_hearings) listen(hearing);
    if (!std::exchange(m_hasBeenOpen, true)) return;
    for (const auto& replaced : m_replaced) replaced();
}

void SessionBus::listen(const Hearing& hearing) {
    m_connection.hear(orAny(hearing.sender), orAny(hearing.path), orAny(hearing.interface),
                      orAny(hearing.member), hearing.heard);
}

void SessionBus::hear(const char* sender, const char* path, const char* interface, const char* member,
                      BusConnection::Heard heard) {
    const auto text = [](const char* value) { return std::string(value == nullptr ? "" : value); };
    m_hearings.push_back({text(sender), text(path), text(interface), text(member), std::move(heard)});
    if (isOpen()) listen(m_hearings.back());
}

void SessionBus::hearOwner(const char* name, OwnerChanged changed) {
    hear(theBus, theBusObject, theBus, "NameOwnerChanged",
         [wanted = std::string(name), changed = std::move(changed)](const char*, GVariant* parameters) {
             if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(sss)")) == FALSE) return;
             const char* told = nullptr;
             const char* before = nullptr;
             const char* owner = nullptr;
             g_variant_get(parameters, "(&s&s&s)", &told, &before, &owner);
             if (wanted == told) changed(*before != '\0', *owner != '\0');
         });
}

Result<GVariantPointer> SessionBus::ask(const Method& method, GVariant* parameters, const char* type,
                                        Starts starts) const {
    if (!isOpen()) {
        if (parameters != nullptr) g_variant_unref(g_variant_ref_sink(parameters));
        return noBus();
    }
    const bool mayStart = starts == Starts::yes;
    const GVariantType* const wanted = type == nullptr ? nullptr : G_VARIANT_TYPE(type);
    GError* error = nullptr;
    GVariantPointer answer(g_dbus_connection_call_sync(
        m_connection.get(), method.name, method.path, method.interface, method.member, parameters, wanted,
        mayStart ? G_DBUS_CALL_FLAGS_NONE : G_DBUS_CALL_FLAGS_NO_AUTO_START,
        mayStart ? patienceWithStart(method.name) : patience, nullptr, &error));
    if (answer) return answer;
    const GFailure failure(error);
    g_dbus_error_strip_remote_error(failure.get());
    return Error{failure->message, ""};
}

void SessionBus::call(const Method& method, GVariant* parameters, BusConnection::Answered answered,
                      Starts starts) {
    if (isOpen()) return m_connection.call(method, parameters, starts == Starts::yes, std::move(answered));
    if (parameters != nullptr) g_variant_unref(g_variant_ref_sink(parameters));
}

bool SessionBus::has(const char* name) const {
    const auto answer =
        ask({theBus, theBusObject, theBus, "NameHasOwner"}, g_variant_new("(s)", name), "(b)");
    gboolean isThere = FALSE;
    if (answer) g_variant_get(answer.value().get(), "(b)", &isThere);
    return isThere == TRUE;
}

std::string SessionBus::ownerOf(const char* name) const {
    const auto answer =
        ask({theBus, theBusObject, theBus, "GetNameOwner"}, g_variant_new("(s)", name), "(s)");
    const char* owner = "";
    if (answer) g_variant_get(answer.value().get(), "(&s)", &owner);
    return owner;
}

std::string SessionBus::ownName() const {
    const char* name = isOpen() ? g_dbus_connection_get_unique_name(m_connection.get()) : nullptr;
    return name == nullptr ? "" : name;
}

Result<void> SessionBus::serve(const char* path, const char* interface, const char* member, Called called) {
    if (!isOpen()) return noBus();
    const std::string xml = std::string("<node><interface name='") + interface + "'><method name='" + member +
                            "'><arg type='s' direction='in'/></method></interface></node>";
    const std::unique_ptr<GDBusNodeInfo, FreeBy<g_dbus_node_info_unref>> node(
        g_dbus_node_info_new_for_xml(xml.c_str(), nullptr));
    static constexpr GDBusInterfaceVTable calls{
        .method_call = onCall, .get_property = nullptr, .set_property = nullptr, .padding = {}};
    const BusLoop::Context::Scope scope(m_loop);
    GError* error = nullptr;
    g_dbus_connection_register_object(m_connection.get(), path, node->interfaces[0], &calls,
                                      new Called(std::move(called)), freeCalled, &error);
    const GFailure failure(error);
    if (failure) return Error{failure->message, ""};
    return {};
}
