// SPDX-License-Identifier: MIT
#include "platform/x11/X11SessionCheck.h"

#include <cstdlib>
#include <sstream>

#include "platform/Sentence.h"
#include "platform/none/NoCapabilities.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/server/XReply.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// Works by those means: not at all if something is lacking that it needs, in part if something limits it.
CapabilityState stateOf(Means means, Lack needed, Lack limit) {
    if (needed != Lack::nothing) return {Extent::nothing, Means::none, needed};
    return {limit == Lack::nothing ? Extent::fully : Extent::partly, means, limit};
}

Lack lackToSee(const Extensions& extensions) {
    if (!extensions.use({Extension::input})) return Lack::xInput;
    return extensions.use({Extension::keyboard}) ? Lack::nothing : Lack::xkb;
}

Lack lackToPress(const Extensions& extensions, const std::string& guard) {
    const Lack lack = lackToSee(extensions);
    if (lack != Lack::nothing) return lack;
    if (!extensions.use({Extension::test})) return Lack::xTest;
    return X11KeyInjector::findsGuard(guard) ? Lack::nothing : Lack::guard;
}

CapabilityState dockingTray(const XConnection& connection) {
    const bool isThere = connection.ownerOf(connection.atom("_NET_SYSTEM_TRAY_S0")) != XCB_WINDOW_NONE;
    return stateOf(Means::dockingTray, isThere ? Lack::nothing : Lack::tray, Lack::nothing);
}

std::vector<std::string> wordsBetween(const std::string& text, char separator) {
    std::vector<std::string> words;
    std::istringstream stream(text);
    for (std::string word; std::getline(stream, word, separator);) words.push_back(word);
    return words;
}

/// What the keymap was made from: rules, model, layouts, variants, options, each with a zero at its end.
std::vector<std::string> layoutsOf(const XConnection& connection) {
    constexpr std::size_t place = 2;
    constexpr std::uint32_t most = 4096;
    const Property names(connection, connection.root(), connection.atom("_XKB_RULES_NAMES"));
    const std::vector<std::string> parts = wordsBetween(names.text(XCB_ATOM_STRING, most), '\0');
    return parts.size() > place ? wordsBetween(parts[place], ',') : std::vector<std::string>();
}

bool isOn(const XConnection& connection, const std::string& lock) {
    const auto light = replyTo(
        connection,
        xcb_xkb_get_named_indicator(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_LED_CLASS_DFLT_XI_CLASS,
                                    XCB_XKB_ID_DFLT_XI_ID, connection.atom(lock)),
        xcb_xkb_get_named_indicator_reply);
    return light && light->found != 0 && light->on != 0;
}

std::vector<std::string> locksOn(const XConnection& connection) {
    std::vector<std::string> on;
    for (const char* lock : {"Caps Lock", "Num Lock", "Scroll Lock"}) {
        if (isOn(connection, lock)) on.emplace_back(lock);
    }
    return on;
}

}  // namespace

X11SessionCheck::Session X11SessionCheck::sessionOfProcess() {
    return {environment("DISPLAY"), environment("WAYLAND_DISPLAY")};
}

Result<> X11SessionCheck::version() const {
    if (m_worksAlready) return {};
    if (m_session.display.empty()) {
        return Error{
            m_session.waylandDisplay.empty()
                ? sentence("Session", "An X11 session is needed, and this is no desktop session.")
                : sentence("Session",
                           "An X11 session is needed, and this is a Wayland session without an X server."),
            sentence("Session", "Choose an X11 session when you log in.")};
    }
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    return Extensions(connection.value()).use({Extension::input});
}

Result<> X11SessionCheck::access() const {
    if (m_worksAlready) return {};
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    return Extensions(connection.value()).use({Extension::keyboard, Extension::test});
}

SessionCapabilities X11SessionCheck::capabilities() const {
    const Result<XConnection> opened = XConnection::open(m_session.display);
    if (!opened) return noCapabilities(Lack::display);
    const XConnection& connection = opened.value();
    const Extensions extensions(connection);
    const bool isWithinWayland = !m_session.waylandDisplay.empty() || extensions.has("XWAYLAND");
    const Lack limit = isWithinWayland ? Lack::nativeWindows : Lack::nothing;
    const Lack repeats = extensions.has("RECORD") ? Lack::nothing : Lack::record;
    const Lack toSee = lackToSee(extensions);
    const CapabilityState pressing = stateOf(Means::xTest, lackToPress(extensions, m_session.guard), limit);
    return {.recording = stateOf(Means::xInput, toSee, isWithinWayland ? limit : repeats),
            .hotKeys = stateOf(Means::xGrab, toSee, limit),
            .pressing = pressing,
            .text = pressing,
            .clipboard = stateOf(Means::xSelection, Lack::nothing, limit),
            .overlay = stateOf(Means::xWindow, Lack::nothing, Lack::nothing),
            .windows = stateOf(Means::windowManager, Lack::nothing, limit),
            .tray = dockingTray(connection)};
}

SessionDetails X11SessionCheck::details() const {
    SessionDetails details{.display = m_session.display, .parts = {}, .layouts = {}, .locksOn = {}};
    const Result<XConnection> opened = XConnection::open(m_session.display);
    if (!opened) return details;
    const Extensions extensions(opened.value());
    const bool hasXkb = static_cast<bool>(extensions.use({Extension::keyboard}));
    details.parts = {{"XInput 2.2", static_cast<bool>(extensions.use({Extension::input}))},
                     {"XKB", hasXkb},
                     {"XTEST", static_cast<bool>(extensions.use({Extension::test}))},
                     {"RECORD", extensions.has("RECORD")}};
    details.layouts = layoutsOf(opened.value());
    if (hasXkb) details.locksOn = locksOn(opened.value());
    return details;
}

}  // namespace x11
