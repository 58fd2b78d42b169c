// SPDX-License-Identifier: MIT
#include "platform/desktops/portal/PortalSession.h"

#include <fcntl.h>
#include <linux/input-event-codes.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <string_view>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/desktops/portal/KdeLayoutNames.h"
#include "platform/desktops/portal/PortalNames.h"

namespace {

using portalnames::object;
using portalnames::service;

constexpr const char* face = "org.freedesktop.portal.RemoteDesktop";
constexpr std::uint32_t keyboards = 1;
constexpr std::array<std::uint16_t, 3> locks{KEY_CAPSLOCK, KEY_NUMLOCK, KEY_SCROLLLOCK};
/// Until the user takes it back.
constexpr std::uint32_t forGood = 2;
constexpr unsigned patienceWithDesktop = 10;
constexpr int callPatience = 2000;
/// For a portal that has to be started again, which lasts where much else is to be done.
constexpr gint64 longestRestart = 60 * G_USEC_PER_SEC;
constexpr gulong betweenAttempts = G_USEC_PER_SEC / 5;

}  // namespace

PortalSession::PortalSession(Options options, std::function<void(PortalAnswer)> answer)
    : m_options(std::move(options)), m_answer(std::move(answer)) {}

PortalSession::~PortalSession() { close(); }

GVariantPointer PortalSession::call(const char* path, const char* interface, const char* member,
                                    GVariant* parameters) const {
    return GVariantPointer(g_dbus_connection_call_sync(m_bus.get(), service, path, interface, member,
                                                       parameters, nullptr, G_DBUS_CALL_FLAGS_NONE,
                                                       callPatience, nullptr, nullptr));
}

GVariantPointer PortalSession::property(const char* name) const {
    const GVariantPointer answer =
        call(object, portalnames::properties, "Get", g_variant_new("(ss)", face, name));
    if (!answer || g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(v)")) == FALSE) return nullptr;
    GVariant* value = nullptr;
    g_variant_get(answer.get(), "(v)", &value);
    GVariantPointer owned(value);
    return g_variant_is_of_type(value, G_VARIANT_TYPE_UINT32) == TRUE ? std::move(owned) : nullptr;
}

void PortalSession::open() {
    if (m_state == State::open) return m_answer(PortalAnswer::opened);
    if (m_state != State::closed) return;
    if (!m_bus) {
        m_bus.reset(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
        if (!m_bus) return fail(PortalAnswer::missing);
        g_dbus_connection_set_exit_on_close(m_bus.get(), FALSE);
        GVariantBuilder none = portalOptions();
        call(object, portalnames::registry, "Register",
             g_variant_new("(sa{sv})", portalnames::program, &none));
    }
    const GVariantPointer version = property("version");
    const GVariantPointer types = property("AvailableDeviceTypes");
    if (!version || !types || !portalnames::mayHaveKeyboards(g_variant_get_uint32(types.get()))) {
        return fail(PortalAnswer::missing);
    }
    m_version = g_variant_get_uint32(version.get());
    m_promisesKeyboards = g_variant_get_uint32(types.get()) != 0;
    watch();
    GVariantBuilder options = portalOptions();
    g_variant_builder_add(&options, "{sv}", "session_handle_token", g_variant_new_string("keyrill"));
    request("CreateSession", State::creating, options, patienceWithDesktop);
}

std::string PortalSession::ownerOf(const char* name) const {
    const GVariantPointer answer(g_dbus_connection_call_sync(
        m_bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "GetNameOwner",
        g_variant_new("(s)", name), G_VARIANT_TYPE("(s)"), G_DBUS_CALL_FLAGS_NONE, callPatience, nullptr,
        nullptr));
    if (!answer) return {};
    const char* owner = nullptr;
    g_variant_get(answer.get(), "(&s)", &owner);
    return owner;
}

bool PortalSession::isOrphaned() const {
    return ownerOf(service) != m_portal || (!m_kde.empty() && ownerOf(portalnames::kde) != m_kde);
}

void PortalSession::watch() {
    unwatch();
    m_portal.clear();
    m_kde.clear();
    m_hasDied = false;
    m_watch = g_bus_watch_name_on_connection(m_bus.get(), service, G_BUS_NAME_WATCHER_FLAGS_NONE, portalCame,
                                             portalGone, this, nullptr);
    m_kdeWatch = g_bus_watch_name_on_connection(m_bus.get(), portalnames::kde, G_BUS_NAME_WATCHER_FLAGS_NONE,
                                                kdeCame, kdeGone, this, nullptr);
}

void PortalSession::unwatch() {
    for (guint* const watch : {&m_watch, &m_kdeWatch})
        if (*watch != 0) g_bus_unwatch_name(std::exchange(*watch, 0));
}

void PortalSession::request(const char* member, State state, GVariantBuilder& options, unsigned patience) {
    m_state = state;
    const auto parameters = [this, state](GVariantBuilder* all) {
        if (state == State::creating) return g_variant_new("(a{sv})", all);
        if (state == State::selecting) return g_variant_new("(oa{sv})", m_session.c_str(), all);
        return g_variant_new("(osa{sv})", m_session.c_str(), "", all);
    };
    m_request.begin(m_bus.get(),
                    {.interface = face, .member = member, .parameters = parameters, .patience = patience},
                    options, [this](PortalRequest::End end, GVariant* results) { responded(end, results); });
}

void PortalSession::responded(PortalRequest::End end, GVariant* results) {
    if (end == PortalRequest::End::refused) return fail(PortalAnswer::refused);
    if (end == PortalRequest::End::silent) return fail(PortalAnswer::silent);
    if (end == PortalRequest::End::failed) return fail(PortalAnswer::lost);
    if (m_state == State::selecting) return start();
    if (m_state == State::starting) return started(results);
    const std::optional<std::string> handle = portalSessionIn(results);
    if (!handle) return fail(PortalAnswer::lost);
    m_session = *handle;
    select();
}

void PortalSession::select() {
    m_end.follow(m_bus.get(), m_session, [this] { lose(); });
    GVariantBuilder options = portalOptions();
    g_variant_builder_add(&options, "{sv}", "types", g_variant_new_uint32(keyboards));
    if (m_version >= withTokens && !m_options.tokenFile.empty()) {
        g_variant_builder_add(&options, "{sv}", "persist_mode", g_variant_new_uint32(forGood));
        const std::string known = token();
        if (!known.empty()) {
            g_variant_builder_add(&options, "{sv}", "restore_token", g_variant_new_string(known.c_str()));
        }
    }
    request("SelectDevices", State::selecting, options, patienceWithDesktop);
}

void PortalSession::start() {
    GVariantBuilder options = portalOptions();
    request("Start", State::starting, options, m_options.patience);
}

void PortalSession::started(GVariant* results) {
    std::uint32_t devices = 0;
    g_variant_lookup(results, "devices", "u", &devices);
    if ((devices & keyboards) == 0)
        return fail(m_promisesKeyboards ? PortalAnswer::refused : PortalAnswer::missing);
    keepToken(results);
    m_state = State::open;
    m_answer(PortalAnswer::opened);
}

std::string PortalSession::token() const {
    std::ifstream stream(m_options.tokenFile);
    std::string token;
    std::getline(stream, token);
    return g_utf8_validate(token.c_str(), -1, nullptr) == TRUE ? token : std::string();
}

/// One that cannot be kept makes the desktop ask again.
void PortalSession::keepToken(GVariant* results) const {
    const char* token = nullptr;
    if (m_options.tokenFile.empty() || g_variant_lookup(results, "restore_token", "&s", &token) == FALSE) {
        return;
    }
    const std::string line = std::string(token) + "\n";
    const std::string draft = m_options.tokenFile + "." + std::to_string(getpid());
    const Descriptor file(::open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600));
    const bool isWritten =
        file && write(file.number(), line.data(), line.size()) == static_cast<ssize_t>(line.size());
    if (!isWritten || rename(draft.c_str(), m_options.tokenFile.c_str()) != 0) unlink(draft.c_str());
}

void PortalSession::key(std::uint16_t keycode, bool press) {
    if (m_state != State::open) return;
    const bool isLock = std::find(locks.begin(), locks.end(), keycode) != locks.end();
    if (press && isLock) m_switched.flip(keycode);
    if (!notify(keycode, press)) fail(PortalAnswer::lost);
}

/// The portal works calls off in several threads: each waits for the one before. One that is not answered in
/// time may be taken all the same.
bool PortalSession::notify(std::uint16_t keycode, bool press) {
    m_down[keycode] = press;
    m_underway.set(keycode);
    GVariantBuilder options = portalOptions();
    return call(object, face, "NotifyKeyboardKeycode",
                g_variant_new("(oa{sv}iu)", m_session.c_str(), &options, static_cast<std::int32_t>(keycode),
                              press ? 1U : 0U)) != nullptr;
}

/// KDE's part takes what the portal passes on in the order of the bus; where another one presses keys there
/// is nobody of that name.
void PortalSession::synchronise() {
    if (m_state != State::open) return;
    const GVariantPointer answer(g_dbus_connection_call_sync(
        m_bus.get(), portalnames::kde, object, "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.freedesktop.impl.portal.RemoteDesktop", "version"), nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, callPatience, nullptr, nullptr));
    if (answer) m_underway.reset();
    m_answer(PortalAnswer::synced);
}

void PortalSession::portalCame(GDBusConnection* /*bus*/, const char* /*name*/, const char* owner,
                               void* self) {
    static_cast<PortalSession*>(self)->m_portal = owner;
}

void PortalSession::portalGone(GDBusConnection* /*bus*/, const char* /*name*/, void* self) {
    static_cast<PortalSession*>(self)->die();
}

void PortalSession::kdeCame(GDBusConnection* /*bus*/, const char* /*name*/, const char* owner, void* self) {
    static_cast<PortalSession*>(self)->m_kde = owner;
}

/// The portal itself would take keys, and pass them on to nobody. Told at first, too, where there is none.
void PortalSession::kdeGone(GDBusConnection* /*bus*/, const char* /*name*/, void* self) {
    auto& session = *static_cast<PortalSession*>(self);
    if (!session.m_kde.empty()) session.die();
}

void PortalSession::die() {
    if (m_hasDied) return;
    leaveTheDead();
    lose();
}

/// Where only KDE's part has died, the portal's has to be told.
void PortalSession::leaveTheDead() {
    m_hasDied = true;
    if (m_session.empty() || ownerOf(service) != m_portal) return;
    call(m_session.c_str(), portalnames::session, "Close", nullptr);
}

/// The session has ended.
void PortalSession::lose() {
    m_session.clear();
    fail(PortalAnswer::lost);
}

void PortalSession::fail(PortalAnswer why) {
    m_request.stop();
    m_state = State::closed;
    m_answer(why);
}

void PortalSession::putBack() {
    for (std::size_t keycode = 0; keycode < m_down.size(); ++keycode) {
        if (m_down[keycode]) notify(static_cast<std::uint16_t>(keycode), false);
    }
    for (const std::uint16_t keycode : locks) {
        if (!m_switched[keycode]) continue;
        notify(keycode, true);
        notify(keycode, false);
    }
}

void PortalSession::putBackByAnother() {
    const auto left = m_down | m_underway;
    if (m_kde.empty() || (left.none() && m_switched.none()) || !asksNobody()) return;
    std::optional<PortalAnswer> answered;
    PortalSession other({.tokenFile = m_options.tokenFile, .patience = patienceWithDesktop},
                        [&answered](PortalAnswer answer) { answered = answer; });
    const gint64 end = g_get_monotonic_time() + longestRestart;
    while (answered != PortalAnswer::opened && g_get_monotonic_time() < end) {
        if (g_dbus_connection_is_closed(m_bus.get()) == TRUE) return;
        if (answered) g_usleep(betweenAttempts);
        answered.reset();
        other.open();
        while (!answered) g_main_context_iteration(nullptr, TRUE);
    }
    if (answered != PortalAnswer::opened) return;
    other.m_down = left;
    other.m_switched = m_switched;
    other.putBack();
    other.m_down.reset();
    other.m_underway.reset();
    other.m_switched.reset();
}

void PortalSession::putLayoutBack() {
    const auto layout = std::exchange(m_homeLayout, std::nullopt);
    if (!layout) return;
    const GVariantPointer answer(
        g_dbus_connection_call_sync(m_bus.get(), kdelayoutnames::service, kdelayoutnames::object,
                                    kdelayoutnames::face, "setLayout", g_variant_new("(u)", *layout), nullptr,
                                    G_DBUS_CALL_FLAGS_NO_AUTO_START, callPatience, nullptr, nullptr));
}

void PortalSession::close() {
    if (!m_bus) return;
    m_request.stop();
    m_state = State::closed;
    unwatch();
    // A call that a death has ended is heard of before the death.
    if (!m_session.empty() && isOrphaned()) {
        leaveTheDead();
        m_session.clear();
    }
    if (!m_session.empty()) putBack();
    if (m_hasDied) putBackByAnother();
    putLayoutBack();
    m_end.stop();
    if (m_session.empty()) return;
    call(std::exchange(m_session, {}).c_str(), portalnames::session, "Close", nullptr);
}
