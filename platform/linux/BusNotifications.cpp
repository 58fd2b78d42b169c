// SPDX-License-Identifier: MIT
#include "platform/linux/BusNotifications.h"

#include <deque>
#include <utility>

#include "platform/linux/BusConnection.h"

namespace {

constexpr std::size_t mostWaiting = 16;
constexpr const char* service = "org.freedesktop.Notifications";
constexpr const char* object = "/org/freedesktop/Notifications";
constexpr BusConnection::Method getCapabilities{service, object, service, "GetCapabilities"};
constexpr BusConnection::Method notify{service, object, service, "Notify"};

struct Message {
    std::string title;
    std::string text;
};

std::string validUtf8(std::string_view text) {
    const GText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    return valid.get();
}

/// As the parameters of Notify; `hasMarkup` says that the service takes texts for markup.
GVariant* parametersOf(const Message& message, bool hasMarkup) {
    const GText markup(g_markup_escape_text(message.text.c_str(), -1));
    GVariantBuilder actions;
    g_variant_builder_init(&actions, G_VARIANT_TYPE("as"));
    GVariantBuilder hints;
    g_variant_builder_init(&hints, G_VARIANT_TYPE("a{sv}"));
    g_variant_builder_add(&hints, "{sv}", "desktop-entry", g_variant_new_string("example.orlen.Keyrill"));
    constexpr guint32 replacesNone = 0;
    constexpr gint32 desktopsOwnTime = -1;
    return g_variant_new("(susssasa{sv}i)", "Keyrill", replacesNone, "example.orlen.Keyrill",
                         message.title.c_str(), hasMarkup ? markup.get() : message.text.c_str(), &actions,
                         &hints, desktopsOwnTime);
}

/// Whether the answer of GetCapabilities has "body-markup".
bool namesMarkup(GDBusMessage* answer) {
    GVariant* body = g_dbus_message_get_body(answer);
    if (body == nullptr || g_variant_is_of_type(body, G_VARIANT_TYPE("(as)")) == FALSE) return false;
    const GVariantPointer list(g_variant_get_child_value(body, 0));
    gsize length = 0;
    const std::unique_ptr<const char*, FreeBy<g_free>> names(g_variant_get_strv(list.get(), &length));
    for (const char** name = names.get(); *name != nullptr; ++name) {
        if (std::string_view(*name) == "body-markup") return true;
    }
    return false;
}

}  // namespace

struct BusNotifications::Parts {
    Parts(BusLoop& loop, const std::string& address)
        : connection(
              loop, address, [this] { ask(); }, [this] { waiting.clear(); }) {}

    void post(Message message) {
        if (!connection.isOpen() && !connection.isOpening()) return;
        waiting.push_back(std::move(message));
        if (waiting.size() > mostWaiting) waiting.pop_front();
        if (connection.isOpen()) ask();
    }

    /// Asked each time, since another service may have come.
    void ask() {
        if (waiting.empty()) return;
        connection.call(getCapabilities, nullptr, true,
                        [this](GDBusMessage* answer) { sendAll(namesMarkup(answer)); });
    }

    void sendAll(bool hasMarkup) {
        for (const Message& message : std::exchange(waiting, {})) {
            connection.call(notify, parametersOf(message, hasMarkup), true, [](GDBusMessage* /*answer*/) {});
        }
    }

    std::deque<Message> waiting;
    BusConnection connection;
};

BusNotifications::BusNotifications(BusLoop& loop, const std::string& sessionBus)
    : m_parts(std::make_unique<Parts>(loop, sessionBus)) {}
BusNotifications::~BusNotifications() = default;

void BusNotifications::post(std::string_view title, std::string_view text) {
    m_parts->post({validUtf8(title), validUtf8(text)});
}
