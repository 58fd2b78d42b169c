// SPDX-License-Identifier: MIT
#include "platform/evdev/access/AccessOpener.h"

#include <gio/gio.h>
#include <gio/gunixfdlist.h>

#include <memory>
#include <string_view>
#include <utility>

#include "platform/Sentence.h"
#include "platform/linux/BusConnection.h"

namespace evdev {

namespace {

constexpr const char* service = "example.orlen.Keyrill.Access";
constexpr const char* object = "/example/orlen/Keyrill/Access";
constexpr const char* face = "example.orlen.Keyrill.Access1";

constexpr const char* theBus = "org.freedesktop.DBus";
constexpr const char* theBusObject = "/org/freedesktop/DBus";

Error noBus() { return {sentence("Keyboards", "The keyboard cannot be read: there is no system bus."), ""}; }

Sentence whereItSpeaks() {
    return sentence("Keyboards",
                    "What it says stands in the system's journal: journalctl -u keyrill-access.");
}

Error serviceGone() {
    return {sentence("Keyboards", "The keyboard is no longer read: the service keyrill-access has ended."),
            whereItSpeaks()};
}

/// Whether a list of names that the bus gives has that of the service.
bool hasService(GDBusConnection* bus, const char* list) {
    constexpr int patience = 1000;
    const GVariantPointer answer(g_dbus_connection_call_sync(bus, theBus, theBusObject, theBus, list, nullptr,
                                                             G_VARIANT_TYPE("(as)"), G_DBUS_CALL_FLAGS_NONE,
                                                             patience, nullptr, nullptr));
    if (!answer) return false;
    const GVariantPointer names(g_variant_get_child_value(answer.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(names.get()); ++i) {
        const GVariantPointer name(g_variant_get_child_value(names.get(), i));
        if (std::string_view(g_variant_get_string(name.get(), nullptr)) == service) return true;
    }
    return false;
}

Error errorFor(const GError& failure) {
    const GText name(g_dbus_error_get_remote_error(&failure));
    const std::string word = name ? name.get() : "";
    if (word == "org.freedesktop.DBus.Error.AccessDenied") {
        return {sentence("Keyboards", "Keyrill may not read the keyboard: permission was not given."),
                sentence("Keyboards", "Record again and agree when you are asked for your password.")};
    }
    if (word == "org.freedesktop.DBus.Error.ServiceUnknown" ||
        word == "org.freedesktop.DBus.Error.NameHasNoOwner") {
        return {sentence("Keyboards",
                         "Keyrill cannot read the keyboard: the service keyrill-access is not installed."),
                sentence("Keyboards",
                         "Install the package keyrill-wayland-access or, from Keyrill's sources, "
                         "tools/access install.")};
    }
    return {
        sentence("Keyboards", "Keyrill cannot read the keyboard: the service keyrill-access does not work."),
        whereItSpeaks()};
}

std::vector<OpenedDevice> devicesOf(GVariant* answer, GUnixFDList* descriptors) {
    std::vector<OpenedDevice> devices;
    const GVariantPointer list(g_variant_get_child_value(answer, 0));
    for (gsize i = 0; descriptors != nullptr && i < g_variant_n_children(list.get()); ++i) {
        const char* name = nullptr;
        gint32 index = -1;
        const GVariantPointer entry(g_variant_get_child_value(list.get(), i));
        g_variant_get(entry.get(), "(&sh)", &name, &index);
        Descriptor descriptor(g_unix_fd_list_get(descriptors, index, nullptr));
        if (descriptor) devices.push_back({std::move(descriptor), name});
    }
    return devices;
}

}  // namespace

/// One that is not answered yet; its opener is null where nobody waits for it any more.
struct AccessOpener::Call {
    AccessOpener* opener;

    static void onAnswer(GObject* bus, GAsyncResult* result, gpointer data) {
        const std::unique_ptr<Call> call(static_cast<Call*>(data));
        GError* error = nullptr;
        GUnixFDList* list = nullptr;
        const GVariantPointer answer(
            g_dbus_connection_call_with_unix_fd_list_finish(G_DBUS_CONNECTION(bus), &list, result, &error));
        const GFailure failure(error);
        const GObjectPointer<GUnixFDList> descriptors(list);
        if (call->opener == nullptr) return;
        call->opener->m_call = nullptr;
        if (answer) {
            call->opener->answered(devicesOf(answer.get(), descriptors.get()));
        } else {
            call->opener->answered(errorFor(*failure));
        }
    }
};

bool AccessOpener::isInstalled(const std::string& systemBus) {
    constexpr auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    const GObjectPointer<GDBusConnection> bus(
        g_dbus_connection_new_for_address_sync(systemBus.c_str(), flags, nullptr, nullptr, nullptr));
    if (!bus) return false;
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    const bool isThere = hasService(bus.get(), "ListActivatableNames") || hasService(bus.get(), "ListNames");
    g_dbus_connection_close_sync(bus.get(), nullptr, nullptr);
    return isThere;
}

AccessOpener::AccessOpener(std::string systemBus) : m_systemBus(std::move(systemBus)) {}
AccessOpener::~AccessOpener() { close(); }

void AccessOpener::open(const std::set<std::string>& /*held*/, Question question, Opened opened) {
    m_opened = std::move(opened);
    m_question = question;
    if (m_bus && !m_bus->isOpen() && !m_bus->isOpening()) m_bus.reset();
    if (!m_bus) {
        m_bus = std::make_unique<BusConnection>(
            m_loop, m_systemBus,
            [this] {
                watchService();
                if (m_opened) ask();
            },
            [this] {
                lose(serviceGone());
                fail(noBus());
            });
        m_loop.wake();
        if (!m_bus->isOpening()) fail(noBus());
    } else if (m_call != nullptr) {
        // The service takes one question at a time.
        m_asksAgain = true;
    } else if (m_bus->isOpen()) {
        ask();
    }
}

void AccessOpener::close() {
    m_opened = {};
    m_asksAgain = false;
    m_devices.clear();
    m_hasSome = false;
    if (m_call != nullptr) std::exchange(m_call, nullptr)->opener = nullptr;
    m_bus.reset();
}

void AccessOpener::ask() {
    m_call = new Call{this};
    const BusLoop::Context::Scope scope(m_loop);
    g_dbus_connection_call_with_unix_fd_list(
        m_bus->get(), service, object, face, "OpenKeyboards",
        g_variant_new("(b)", static_cast<gboolean>(m_question == Question::allowed)),
        G_VARIANT_TYPE("(a(sh))"), G_DBUS_CALL_FLAGS_NONE, G_MAXINT, nullptr, nullptr, Call::onAnswer,
        m_call);
}

void AccessOpener::answered(Result<std::vector<OpenedDevice>> answer) {
    if (answer) {
        m_hasSome = true;
        for (OpenedDevice& device : answer.value()) m_devices.push_back(std::move(device));
    }
    if (std::exchange(m_asksAgain, false)) return ask();
    // Called last: it may ask again.
    if (const Opened opened = std::exchange(m_opened, {})) {
        opened(answer ? std::exchange(m_devices, {}) : std::move(answer));
    }
}

/// What the service has passed stays open when it is killed, and nobody else would take it back.
void AccessOpener::watchService() {
    m_bus->hear(
        theBus, theBusObject, theBus, "NameOwnerChanged",
        [this](const char* /*sender*/, GVariant* parameters) {
            const char* owner = nullptr;
            if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(sss)")) == FALSE) return;
            g_variant_get(parameters, "(&s&s&s)", nullptr, nullptr, &owner);
            if (*owner == '\0') lose(serviceGone());
        },
        service);
}

void AccessOpener::lose(const Error& why) {
    if (std::exchange(m_hasSome, false) && m_lost) m_lost(why);
}

void AccessOpener::fail(const Error& error) {
    if (m_call != nullptr) std::exchange(m_call, nullptr)->opener = nullptr;
    m_asksAgain = false;
    if (const Opened opened = std::exchange(m_opened, {})) opened(error);
}

}  // namespace evdev
