// SPDX-License-Identifier: MIT
#include "platform/linux/BusNotifications.h"

#include <algorithm>
#include <deque>
#include <map>
#include <optional>
#include <utility>

#include "platform/linux/BusConnection.h"

namespace {

constexpr std::size_t mostWaiting = 16;
constexpr std::size_t mostUnanswered = 16;
constexpr std::size_t mostBytes = 8192;
constexpr const char* service = "org.freedesktop.Notifications";
constexpr const char* object = "/org/freedesktop/Notifications";
constexpr BusConnection::Method getCapabilities{service, object, service, "GetCapabilities"};
constexpr BusConnection::Method notify{service, object, service, "Notify"};

struct Message {
    std::string title;
    std::string text;
    Notifications::Unshown unshown;
};

void tell(const Notifications::Unshown& unshown) {
    if (unshown) unshown();
}

/// The bytes that go on a character.
bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// As much as anybody reads of it, in UTF-8.
std::string shownText(std::string_view text) {
    std::size_t end = std::min(text.size(), mostBytes);
    while (end < text.size() && end > 0 && isContinuation(text[end])) --end;
    const GText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(end)));
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
              loop, address, [this] { watchService(); }, [this] { forgetBus(); }) {}
    ~Parts() { unwatchService(); }

    void post(Message message) {
        if (!connection.isOpen() && !connection.isOpening()) return tell(message.unshown);
        waiting.push_back(std::move(message));
        if (waiting.size() > mostWaiting) waiting.pop_front();
        if (connection.isOpen()) sendOrAsk();
    }

    void watchService() {
        const BusLoop::Context::Scope scope(connection.loop());
        watch = g_bus_watch_name_on_connection(connection.get(), service, G_BUS_NAME_WATCHER_FLAGS_NONE,
                                               onAppeared, onVanished, this, nullptr);
        // The watch tells first who is there.
        isAsking = true;
    }
    void unwatchService() {
        if (watch != 0) g_bus_unwatch_name(std::exchange(watch, 0));
    }
    void forgetBus() {
        unwatchService();
        forgetService();
        giveUpSent();
        giveUp();
    }
    /// What is told may post anew.
    void giveUp() {
        const std::deque<Message> lost = std::exchange(waiting, {});
        for (const Message& message : lost) tell(message.unshown);
    }
    /// No answer comes from a bus that has died.
    void giveUpSent() {
        const std::map<unsigned, Notifications::Unshown> lost = std::exchange(sent, {});
        for (const auto& [number, unshown] : lost) tell(unshown);
    }
    void forgetService() {
        hasMarkup.reset();
        isAsking = false;
        unanswered = 0;
        ++serviceNumber;
    }

    void sendOrAsk() {
        if (waiting.empty()) return;
        hasMarkup ? sendAll() : ask();
    }

    /// Starts the service if there is something for it to do.
    void ask() {
        if (std::exchange(isAsking, true)) return;
        connection.call(getCapabilities, nullptr, !waiting.empty(),
                        [this, asked = serviceNumber](GDBusMessage* answer) {
                            if (asked != serviceNumber) return;
                            isAsking = false;
                            if (answer == nullptr) return giveUp();
                            hasMarkup = namesMarkup(answer);
                            sendAll();
                        });
    }

    void sendAll() {
        for (; !waiting.empty() && unanswered < mostUnanswered; waiting.pop_front()) {
            ++unanswered;
            const unsigned number = ++messages;
            sent.emplace(number, waiting.front().unshown);
            connection.call(notify, parametersOf(waiting.front(), *hasMarkup), true,
                            [this, number, asked = serviceNumber](GDBusMessage* answer) {
                                const auto message = sent.extract(number);
                                if (answer == nullptr && !message.empty()) tell(message.mapped());
                                if (asked != serviceNumber) return;
                                --unanswered;
                                sendAll();
                            });
        }
    }

    static void onAppeared(GDBusConnection* /*connection*/, const char* /*name*/, const char* /*owner*/,
                           void* self) {
        auto& parts = *static_cast<Parts*>(self);
        // What was asked meanwhile, another may answer.
        parts.forgetService();
        parts.ask();
    }
    static void onVanished(GDBusConnection* /*connection*/, const char* /*name*/, void* self) {
        auto& parts = *static_cast<Parts*>(self);
        parts.forgetService();
        parts.sendOrAsk();
    }

    std::deque<Message> waiting;
    /// Whom to tell of the messages that nobody has answered, by their numbers.
    std::map<unsigned, Notifications::Unshown> sent;
    unsigned messages = 0;
    /// What the service of now does with texts; empty until it has told.
    std::optional<bool> hasMarkup;
    bool isAsking = false;
    /// How many messages were sent to the service of now that it has not answered.
    std::size_t unanswered = 0;
    /// Counts the services; answers of earlier ones are of no interest.
    unsigned serviceNumber = 0;
    guint watch = 0;
    BusConnection connection;
};

BusNotifications::BusNotifications(BusLoop& loop, const std::string& sessionBus)
    : m_parts(std::make_unique<Parts>(loop, sessionBus)) {}
BusNotifications::~BusNotifications() = default;

void BusNotifications::post(std::string_view title, std::string_view text, Unshown unshown) {
    m_parts->post({shownText(title), shownText(text), std::move(unshown)});
}
