// SPDX-License-Identifier: MIT
#include "platform/evdev/access/AccessOpener.h"

#include <gio/gio.h>
#include <gio/gunixfdlist.h>

#include <memory>
#include <utility>

#include "platform/linux/BusConnection.h"

namespace evdev {

namespace {

constexpr const char* service = "example.orlen.Keyrill.Access";
constexpr const char* object = "/example/orlen/Keyrill/Access";
constexpr const char* face = "example.orlen.Keyrill.Access1";

const Error noBus{"The keyboard cannot be read: there is no system bus.", ""};

Error errorFor(const GError& failure) {
    const GText name(g_dbus_error_get_remote_error(&failure));
    const std::string word = name ? name.get() : "";
    if (word == "org.freedesktop.DBus.Error.AccessDenied") {
        return {"Keyrill may not read the keyboard: permission was not given.",
                "Record again and agree when you are asked for your password."};
    }
    if (word == "org.freedesktop.DBus.Error.ServiceUnknown" ||
        word == "org.freedesktop.DBus.Error.NameHasNoOwner") {
        return {"Keyrill cannot read the keyboard: the service keyrill-access is not installed.",
                "Install it from Keyrill's sources: tools/access install."};
    }
    return {"Keyrill cannot read the keyboard: the service keyrill-access does not work.",
            "What it says stands in the system's journal: journalctl -u keyrill-access."};
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

AccessOpener::AccessOpener(std::string systemBus) : m_systemBus(std::move(systemBus)) {}
AccessOpener::~AccessOpener() { close(); }

void AccessOpener::open(const std::set<std::string>& /*held*/, Question question, Opened opened) {
    m_opened = std::move(opened);
    m_question = question;
    if (m_bus && !m_bus->isOpen() && !m_bus->isOpening()) m_bus.reset();
    if (!m_bus) {
        m_bus = std::make_unique<BusConnection>(
            m_loop, m_systemBus, [this] { ask(); }, [this] { fail(noBus); });
        m_loop.wake();
        if (!m_bus->isOpening()) fail(noBus);
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
        for (OpenedDevice& device : answer.value()) m_devices.push_back(std::move(device));
    }
    if (std::exchange(m_asksAgain, false)) return ask();
    // Called last: it may ask again.
    if (const Opened opened = std::exchange(m_opened, {})) {
        opened(answer ? std::exchange(m_devices, {}) : std::move(answer));
    }
}

void AccessOpener::fail(const Error& error) {
    if (m_call != nullptr) std::exchange(m_call, nullptr)->opener = nullptr;
    m_asksAgain = false;
    if (const Opened opened = std::exchange(m_opened, {})) opened(error);
}

}  // namespace evdev
