// SPDX-License-Identifier: MIT
#include "platform/x11/X11ScriptDesktop.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/Clock.h"

namespace {

constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::milliseconds betweenLooks{2};

std::string lowered(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return out;
}

}  // namespace

Result<std::unique_ptr<X11ScriptDesktop>> X11ScriptDesktop::open(Clock& clock, const std::string& display) {
    auto connection = XConnection::open(display);
    if (!connection) return connection.error();
    return std::make_unique<X11ScriptDesktop>(std::move(connection).value(), display, clock);
}

X11ScriptDesktop::X11ScriptDesktop(XConnection connection, const std::string& display, Clock& clock)
    : m_connection(std::move(connection)),
      m_focus(m_connection),
      m_clipboard(display),
      m_clock(clock),
      m_stacking(m_connection.atom("_NET_CLIENT_LIST_STACKING")),
      m_clients(m_connection.atom("_NET_CLIENT_LIST")) {}

Result<void> X11ScriptDesktop::beep(int count) {
    for (int i = 0; i < count; ++i) xcb_bell(m_connection, 0);
    m_connection.roundTrip();
    return {};
}

std::vector<xcb_window_t> X11ScriptDesktop::windows(xcb_atom_t list) const {
    constexpr std::uint32_t most = 4096;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, m_connection.root(), list, XCB_ATOM_WINDOW, 0, most),
        nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

/// WM_CLASS holds two texts, each ended by a zero: the program's and the class's name.
bool X11ScriptDesktop::isOf(xcb_window_t window, const std::string& name) const {
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 256),
        nullptr));
    if (!reply || reply->format != 8) return false;
    std::string_view names(static_cast<const char*>(xcb_get_property_value(reply.get())),
                           static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
    while (!names.empty()) {
        const std::string_view one = names.substr(0, names.find('\0'));
        if (lowered(one) == name) return true;
        names.remove_prefix(std::min(one.size() + 1, names.size()));
    }
    return false;
}

xcb_window_t X11ScriptDesktop::findWindow(std::string_view name) const {
    std::vector<xcb_window_t> all = windows(m_stacking);
    if (all.empty()) all = windows(m_clients);
    const std::string wanted = lowered(name);
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&](xcb_window_t window) { return isOf(window, wanted); });
    return found == all.rend() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : *found;
}

Result<void> X11ScriptDesktop::activate(std::string_view name) {
    const xcb_window_t window = findWindow(name);
    if (window == XCB_WINDOW_NONE)
        return Error{"No window of “" + std::string(name) + "” is open.", "Start it first."};
    m_focus.request(window, WindowFocus::Source::pager, 0);
    m_connection.roundTrip();
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isActive = [&] { return m_focus.activeWindow() == window && m_focus.isIn(window); };
    while (!isActive() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
    return {};
}
