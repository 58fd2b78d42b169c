// SPDX-License-Identifier: MIT
#include "platform/desktops/PortalShortcuts.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/Sentence.h"
#include "platform/desktops/GnomeLayouts.h"
#include "platform/desktops/portal/PortalNames.h"

namespace {

using portalnames::object;
using portalnames::service;

constexpr const char* face = "org.freedesktop.portal.GlobalShortcuts";
/// What a desktop's part of the portal has that gives hot keys, and where GNOME's part is.
constexpr std::string_view partsFace = "\"org.freedesktop.impl.portal.GlobalShortcuts\"";
constexpr const char* partOfGnome = "org.freedesktop.impl.portal.desktop.gnome";

Sentence leftOut() { return sentence("HotKeys", "the desktop has not granted it"); }

/// A name of each with what is said of it.
GVariantPointer shortcutsIn(GVariant* results) {
    if (results == nullptr) return nullptr;
    return GVariantPointer(g_variant_lookup_value(results, "shortcuts", G_VARIANT_TYPE("a(sa{sv})")));
}

std::string wordsOf(GVariant* facts) {
    const char* words = "";
    g_variant_lookup(facts, "trigger_description", "&s", &words);
    return words;
}

std::string whyNot(PortalRequest::End end) {
    if (end == PortalRequest::End::refused)
        return sentence("HotKeys", "you did not agree when the desktop asked");
    if (end == PortalRequest::End::silent) return sentence("HotKeys", "the desktop has not answered");
    return sentence("HotKeys", "the desktop has refused it");
}

bool givesGnomeAny(const SessionBus& bus) {
    const auto answer = bus.ask({partOfGnome, object, "org.freedesktop.DBus.Introspectable", "Introspect"},
                                nullptr, "(s)", SessionBus::Starts::yes);
    if (!answer) return false;
    const char* description = "";
    g_variant_get(answer.value().get(), "(&s)", &description);
    return std::string_view(description).find(partsFace) != std::string_view::npos;
}

}  // namespace

bool PortalShortcuts::isThere(const SessionBus& bus) {
    const auto answer = bus.ask({service, object, portalnames::properties, "Get"},
                                g_variant_new("(ss)", face, "version"), "(v)", SessionBus::Starts::yes);
    // The portal offers what any part of it gives that is installed: KDE's does nothing under GNOME.
    return answer && (!GnomeLayouts::isThere(bus) || givesGnomeAny(bus));
}

PortalShortcuts::PortalShortcuts(SessionBus& bus, Words words, Patience patience)
    : m_bus(bus), m_words(std::move(words)), m_patience(patience) {
    listen();
}

PortalShortcuts::~PortalShortcuts() {
    if (m_later) g_source_destroy(m_later.get());
    m_request.stop();
    m_end.stop();
    if (m_session.empty()) return;
    // A portal that has gone has none of them any more.
    [[maybe_unused]] const auto ended =
        m_bus.ask({service, m_session.c_str(), portalnames::session, "Close"}, nullptr, nullptr);
}

void PortalShortcuts::listen() {
    m_bus.hear(service, object, face, "Activated",
               [this](const char*, GVariant* parameters) { heard(parameters, Event::Kind::press); });
    m_bus.hear(service, object, face, "Deactivated",
               [this](const char*, GVariant* parameters) { heard(parameters, Event::Kind::release); });
    m_bus.hear(service, object, face, "ShortcutsChanged",
               [this](const char*, GVariant* parameters) { changed(parameters); });
    m_bus.hearOwner(service, [this](bool wasThere, bool isThere) { ownerChanged(wasThere, isThere); });
    m_bus.whenReplaced([this] { forget(); });
}

std::optional<std::string> PortalShortcuts::grab(const KeyGrab& grab, const HotKeyRequest& request) {
    m_wishes[request.name] = {.grab = grab, .title = request.title, .trigger = m_words.triggerOf(grab)};
    considerLater();
    return std::nullopt;
}

void PortalShortcuts::release(const KeyGrab& grab) {
    const auto count =
        std::erase_if(m_wishes, [&grab](const auto& entry) { return entry.second.grab == grab; });
    if (count > 0) considerLater();
}

/// Once all that is wished in one breath has been said: there is one question in each session.
void PortalShortcuts::considerLater() {
    if (m_later) return;
    m_later.reset(g_idle_source_new());
    g_source_set_callback(m_later.get(), considerNow, this, nullptr);
    g_source_attach(m_later.get(), m_bus.loop().context().get());
}

gboolean PortalShortcuts::considerNow(void* self) {
    auto& shortcuts = *static_cast<PortalShortcuts*>(self);
    shortcuts.m_later.reset();
    shortcuts.consider();
    return G_SOURCE_REMOVE;
}

void PortalShortcuts::consider() {
    if (m_state == State::asking) return;
    if (isAnotherSessionNeeded()) return begin();
    for (auto& [name, wish] : m_wishes) {
        if (!wish.isAnswered) tell(name, wish);
    }
}

bool PortalShortcuts::isAnotherSessionNeeded() const {
    const auto isNews = [this](const auto& wish) { return !isAskedFor(wish.first, wish.second); };
    if (std::any_of(m_wishes.begin(), m_wishes.end(), isNews)) return true;
    return m_state == State::bound && std::any_of(m_asked.begin(), m_asked.end(), [this](const auto& asked) {
               return !asked.second.refusal && !m_wishes.contains(asked.first);
           });
}

/// What was granted is the user's to change from then on; what was refused can be had as something else.
bool PortalShortcuts::isAskedFor(const std::string& name, const Wish& wish) const {
    const auto asked = m_asked.find(name);
    return asked != m_asked.end() && (!asked->second.refusal || asked->second.trigger == wish.trigger);
}

void PortalShortcuts::tell(const std::string& name, Wish& wish) {
    const Asked& asked = m_asked.at(name);
    GrabAnswer answer{.refusal = asked.refusal, .trigger = asked.words};
    if (!asked.refusal) answer.keys = m_words.meaningOf(asked.words);
    m_events.push_back({Event::Kind::answer, wish.grab.keycode, wish.grab.modifiers, std::move(answer)});
    wish.isAnswered = true;
}

/// Who we are comes before all else; an old portal does not ask.
void PortalShortcuts::begin() {
    closeSession();
    m_asked.clear();
    if (m_wishes.empty()) return;
    if (!m_bus.isOpen()) return endBecause(sentence("HotKeys", "there is no session bus"));
    m_state = State::asking;
    GVariantBuilder none = portalOptions();
    m_bus.call(
        {service, object, portalnames::registry, "Register"},
        g_variant_new("(sa{sv})", portalnames::program, &none),
        [this](GDBusMessage*) {
            if (m_state == State::asking) create();
        },
        SessionBus::Starts::yes);
}

void PortalShortcuts::create() {
    GVariantBuilder options = portalOptions();
    // What is still said of a session before is not taken for this one's.
    const std::string token = "keyrill_shortcuts" + std::to_string(++m_sessions);
    g_variant_builder_add(&options, "{sv}", "session_handle_token", g_variant_new_string(token.c_str()));
    const BusLoop::Context::Scope scope(m_bus.loop());
    m_request.begin(m_bus.get(),
                    {.interface = face,
                     .member = "CreateSession",
                     .parameters = [](GVariantBuilder* all) { return g_variant_new("(a{sv})", all); },
                     .patience = static_cast<unsigned>(m_patience.desktop.count())},
                    options, [this](PortalRequest::End end, GVariant* results) { created(end, results); });
}

void PortalShortcuts::created(PortalRequest::End end, GVariant* results) {
    const auto session =
        end == PortalRequest::End::agreed ? portalSessionIn(results) : std::optional<std::string>();
    if (!session) {
        m_isPortalAtFault = true;
        return endBecause(end == PortalRequest::End::silent
                              ? sentence("HotKeys", "the desktop's portal does not answer")
                              : sentence("HotKeys", "the desktop's portal gives no hot keys"));
    }
    m_session = *session;
    const BusLoop::Context::Scope scope(m_bus.loop());
    m_end.follow(m_bus.get(), m_session, [this] { closed(); });
    bind();
}

void PortalShortcuts::bind() {
    GVariantBuilder shortcuts;
    g_variant_builder_init(&shortcuts, G_VARIANT_TYPE("a(sa{sv})"));
    for (const auto& [name, wish] : m_wishes) {
        GVariantBuilder facts = portalOptions();
        g_variant_builder_add(&facts, "{sv}", "description", g_variant_new_string(wish.title.c_str()));
        if (!wish.trigger.empty()) {
            g_variant_builder_add(&facts, "{sv}", "preferred_trigger",
                                  g_variant_new_string(wish.trigger.c_str()));
        }
        g_variant_builder_add(&shortcuts, "(sa{sv})", name.c_str(), &facts);
        m_asked[name] = {.trigger = wish.trigger, .refusal = leftOut()};
    }
    GVariantBuilder options = portalOptions();
    const BusLoop::Context::Scope scope(m_bus.loop());
    m_request.begin(m_bus.get(),
                    {.interface = face,
                     .member = "BindShortcuts",
                     .parameters =
                         [&](GVariantBuilder* all) {
                             return g_variant_new("(oa(sa{sv})sa{sv})", m_session.c_str(), &shortcuts, "",
                                                  all);
                         },
                     .patience = static_cast<unsigned>(m_patience.user.count())},
                    options, [this](PortalRequest::End end, GVariant* results) { bound(end, results); });
}

/// What is in the answer counts: early versions of GNOME's portal agree with a code of no meaning.
void PortalShortcuts::bound(PortalRequest::End end, GVariant* results) {
    const GVariantPointer shortcuts = shortcutsIn(results);
    if (!shortcuts && end != PortalRequest::End::agreed) return refuseWhatWasAsked(whyNot(end));
    m_state = State::bound;
    m_isPortalAtFault = false;
    if (shortcuts) take(shortcuts.get());
    consider();
}

void PortalShortcuts::take(GVariant* shortcuts) {
    for (gsize i = 0; i < g_variant_n_children(shortcuts); ++i) {
        const char* name = nullptr;
        GVariant* facts = nullptr;
        g_variant_get_child(shortcuts, i, "(&s@a{sv})", &name, &facts);
        const GVariantPointer owned(facts);
        const auto asked = m_asked.find(name);
        if (asked == m_asked.end()) continue;
        asked->second.refusal.reset();
        asked->second.words = wordsOf(facts);
        const auto wish = m_wishes.find(name);
        if (wish != m_wishes.end()) wish->second.isAnswered = false;
    }
}

void PortalShortcuts::endBecause(const std::string& why) {
    closeSession();
    for (auto& [name, wish] : m_wishes) {
        m_asked[name] = {.trigger = wish.trigger, .refusal = why};
        tell(name, wish);
    }
}

/// What has been wished since the question was asked is asked for in another one.
void PortalShortcuts::refuseWhatWasAsked(const std::string& why) {
    closeSession();
    for (auto& [name, wish] : m_wishes) {
        const auto asked = m_asked.find(name);
        if (asked == m_asked.end() || asked->second.trigger != wish.trigger) continue;
        asked->second.refusal = why;
        tell(name, wish);
    }
    considerLater();
}

void PortalShortcuts::closeSession() {
    m_request.stop();
    m_end.stop();
    m_state = State::idle;
    if (m_session.empty()) return;
    const std::string session = std::exchange(m_session, {});
    m_bus.call({service, session.c_str(), portalnames::session, "Close"}, nullptr, [](GDBusMessage*) {});
}

/// All is asked for again.
void PortalShortcuts::forget() {
    m_request.stop();
    m_end.stop();
    m_state = State::idle;
    m_session.clear();
    m_asked.clear();
    m_isPortalAtFault = false;
    m_events.push_back({.kind = Event::Kind::reload});
}

std::optional<HotKeyBinder::Event> PortalShortcuts::nextEvent() {
    m_bus.update();
    if (m_events.empty()) return std::nullopt;
    const Event event = m_events.front();
    m_events.pop_front();
    return event;
}

void PortalShortcuts::heard(GVariant* parameters, Event::Kind kind) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(osta{sv})")) == FALSE) return;
    const char* session = nullptr;
    const char* name = nullptr;
    g_variant_get(parameters, "(&o&st@a{sv})", &session, &name, nullptr, nullptr);
    const auto wish = m_wishes.find(name);
    if (m_state != State::bound || m_session != session || wish == m_wishes.end()) return;
    const auto asked = m_asked.find(name);
    if (asked == m_asked.end() || asked->second.refusal) return;
    m_events.push_back({kind, wish->second.grab.keycode, wish->second.grab.modifiers});
}

/// The answer to a question that is still open has all that is told before it.
void PortalShortcuts::changed(GVariant* parameters) {
    if (g_variant_is_of_type(parameters, G_VARIANT_TYPE("(oa(sa{sv}))")) == FALSE) return;
    const char* session = nullptr;
    GVariant* shortcuts = nullptr;
    g_variant_get(parameters, "(&o@a(sa{sv}))", &session, &shortcuts);
    const GVariantPointer owned(shortcuts);
    if (m_state != State::bound || m_session != session) return;
    take(shortcuts);
    consider();
}

void PortalShortcuts::closed() {
    m_end.stop();
    m_session.clear();
    endBecause(sentence("HotKeys", "the desktop has taken it back"));
}

/// One that dies while it is asked is not asked again at once: it could die of that.
void PortalShortcuts::ownerChanged(bool wasThere, bool isThere) {
    if (wasThere && m_state == State::bound) return forget();
    if (wasThere && m_state == State::asking) {
        m_session.clear();
        m_isPortalAtFault = true;
        return endBecause(sentence("HotKeys", "the desktop's portal has ended"));
    }
    if (isThere && m_state == State::idle && m_isPortalAtFault) forget();
}
