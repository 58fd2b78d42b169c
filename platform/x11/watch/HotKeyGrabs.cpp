// SPDX-License-Identifier: MIT
#include "platform/x11/watch/HotKeyGrabs.h"

#include "platform/Sentence.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint16_t allModifiers = 0xFF;

std::string reason(const xcb_generic_error_t& error) {
    if (error.error_code == XCB_ACCESS) return sentence("HotKeys", "another program holds it");
    return sentence("HotKeys", "the X server refuses it with error %1").arg(std::to_string(error.error_code));
}

}  // namespace

Result<std::unique_ptr<HotKeyGrabs>> HotKeyGrabs::open(const std::string& display) {
    Result<XConnection> connection = XConnection::open(display);
    if (!connection) return connection.error();
    std::unique_ptr<HotKeyGrabs> grabs(new HotKeyGrabs(std::move(connection).value()));
    const Result<> usable = Extensions(grabs->m_connection).use({Extension::input, Extension::keyboard});
    if (!usable) return usable.error();
    // Without it a held key would come as pairs of releases and presses.
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    xcb_xkb_per_client_flags(grabs->m_connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
    return grabs;
}

std::optional<std::string> HotKeyGrabs::grab(const KeyGrab& grab, const HotKeyRequest& request) {
    return grabAll({{grab, request}}).front();
}

std::vector<std::optional<std::string>> HotKeyGrabs::grabAll(const std::vector<Wish>& wishes) {
    std::vector<Cookies> asked;
    asked.reserve(wishes.size());
    for (const Wish& wish : wishes) asked.push_back(ask(wish.grab));
    std::vector<std::optional<std::string>> failures;
    bool isAnyRefused = false;
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        failures.push_back(answerTo(asked[i]));
        if (!failures.back()) continue;
        giveBack(wishes[i].grab);
        isAnyRefused = true;
    }
    if (isAnyRefused) m_connection.roundTrip();
    return failures;
}

HotKeyGrabs::Cookies HotKeyGrabs::ask(const KeyGrab& grab) {
    Cookies cookies;
    for (const std::uint16_t modifiers : grab.variants()) {
        m_combinations.insert({grab.keycode, modifiers});
        cookies.push_back(xcb_grab_key_checked(m_connection, 0, m_connection.root(), modifiers, grab.keycode,
                                               XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    return cookies;
}

std::optional<std::string> HotKeyGrabs::answerTo(const Cookies& cookies) const {
    std::optional<std::string> failure;
    for (const xcb_void_cookie_t cookie : cookies) {
        const auto error = refusalOf(m_connection, cookie);
        if (error && !failure) failure = reason(*error);
    }
    if (!failure && m_connection.isBroken()) failure = sentence("HotKeys", "the X server is gone");
    return failure;
}

void HotKeyGrabs::release(const KeyGrab& grab) {
    giveBack(grab);
    m_connection.roundTrip();
}

void HotKeyGrabs::giveBack(const KeyGrab& grab) {
    for (const std::uint16_t modifiers : grab.variants()) {
        const KeyPlace place{grab.keycode, modifiers};
        m_combinations.erase(place);
        ungrab(place);
    }
}

void HotKeyGrabs::ungrab(const KeyPlace& place) const {
    xcb_ungrab_key(m_connection, place.keycode, m_connection.root(), place.modifiers);
}

void HotKeyGrabs::endActiveGrab() {
    xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

void HotKeyGrabs::yieldKeyboard(const GrabbedPress& press) {
    const std::vector<std::uint16_t> fewer =
        KeyGrab{.keycode = press.keycode, .modifiers = 0, .locks = press.modifiers}.variants();
    for (const std::uint16_t modifiers : fewer) {
        const KeyPlace place{press.keycode, modifiers};
        if (!m_combinations.contains(place) && m_shields.insert(place).second) shield(place);
    }
    endActiveGrab();
}

void HotKeyGrabs::shield(const KeyPlace& place) {
    m_limit.add(place);
    // Where another program holds it, the repeats are that program's.
    xcb_grab_key(m_connection, 0, m_connection.root(), place.modifiers, place.keycode, XCB_GRAB_MODE_ASYNC,
                 XCB_GRAB_MODE_SYNC);
}

void HotKeyGrabs::passOn() {
    xcb_allow_events(m_connection, XCB_ALLOW_REPLAY_KEYBOARD, XCB_CURRENT_TIME);
    m_connection.roundTrip();
}

void HotKeyGrabs::takeUp() {
    m_lifted.clear();
    while (!m_shields.empty()) takeUp(m_shields.begin()->keycode);
}

void HotKeyGrabs::takeUp(std::uint8_t keycode) {
    std::erase_if(m_lifted, [&](const KeyPlace& place) { return place.keycode == keycode; });
    if (unshield(keycode)) m_connection.roundTrip();
}

bool HotKeyGrabs::unshield(std::uint8_t keycode) {
    return std::erase_if(m_shields, [&](const KeyPlace& place) {
               if (place.keycode != keycode) return false;
               m_limit.remove(place);
               if (!m_combinations.contains(place)) ungrab(place);
               return true;
           }) != 0;
}

bool HotKeyGrabs::liftShields(std::uint8_t keycode) {
    for (const KeyPlace& place : m_shields) {
        if (place.keycode == keycode) m_lifted.insert(place);
    }
    const bool isAny = unshield(keycode);
    if (isAny) m_connection.roundTrip();
    return isAny;
}

void HotKeyGrabs::restoreShields(std::uint8_t keycode) {
    const auto isRestored = [&](const KeyPlace& place) {
        if (place.keycode != keycode) return false;
        if (!m_combinations.contains(place) && m_shields.insert(place).second) shield(place);
        return true;
    };
    if (std::erase_if(m_lifted, isRestored) != 0) m_connection.roundTrip();
}

bool HotKeyGrabs::read() {
    m_limit.note();
    const std::size_t before = m_presses.size();
    while (const Event event = m_connection.nextEvent()) {
        const auto* key = event.as(keyPress);
        if (key == nullptr) continue;
        m_presses.push_back(
            {key->detail, static_cast<std::uint16_t>(key->state & allModifiers), key->time, ++m_lastNumber});
    }
    return m_presses.size() != before;
}

void HotKeyGrabs::catchUp() {
    m_connection.roundTrip();
    read();
}

}  // namespace x11
