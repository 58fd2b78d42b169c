// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11ScriptDesktop.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/x11/server/Property.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/windows/WindowFocus.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds longestWait{500};
constexpr std::chrono::milliseconds betweenLooks{2};

std::string lowered(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return out;
}

}  // namespace

struct X11ScriptDesktop::Server {
    explicit Server(XConnection opened) : connection(std::move(opened)) {}

    /// The window that lies highest of those that the window manager knows.
    xcb_window_t findWindow(std::string_view name) const;
    bool isOf(xcb_window_t window, const std::string& name) const;
    std::vector<xcb_window_t> windows(xcb_atom_t list) const;

    XConnection connection;
    WindowFocus focus{connection};
    xcb_atom_t stacking = connection.atom("_NET_CLIENT_LIST_STACKING");
    xcb_atom_t clients = connection.atom("_NET_CLIENT_LIST");
};

X11ScriptDesktop::X11ScriptDesktop(Clock& clock, const std::string& display)
    : m_display(display), m_clock(clock), m_clipboard(display) {}
X11ScriptDesktop::~X11ScriptDesktop() = default;

Result<const X11ScriptDesktop::Server*> X11ScriptDesktop::server() {
    if (!m_server) {
        auto connection = XConnection::open(m_display);
        if (!connection) return connection.error();
        m_server = std::make_unique<Server>(std::move(connection).value());
    }
    return m_server.get();
}

Result<void> X11ScriptDesktop::beep(int count) {
    const auto opened = server();
    if (!opened) return opened.error();
    const XConnection& connection = opened.value()->connection;
    for (int i = 0; i < count; ++i) xcb_bell(connection, 0);
    connection.roundTrip();
    return {};
}

std::vector<xcb_window_t> X11ScriptDesktop::Server::windows(xcb_atom_t list) const {
    constexpr std::uint32_t most = 4096;
    return Property(connection, connection.root(), list).numbers(XCB_ATOM_WINDOW, most);
}

/// WM_CLASS holds two texts, each ended by a zero: the program's and the class's name.
bool X11ScriptDesktop::Server::isOf(xcb_window_t window, const std::string& name) const {
    constexpr std::uint32_t most = 1024;
    const std::string both = Property(connection, window, XCB_ATOM_WM_CLASS).text(XCB_ATOM_STRING, most);
    std::string_view names = both;
    while (!names.empty()) {
        const std::string_view one = names.substr(0, names.find('\0'));
        if (lowered(one) == name) return true;
        names.remove_prefix(std::min(one.size() + 1, names.size()));
    }
    return false;
}

xcb_window_t X11ScriptDesktop::Server::findWindow(std::string_view name) const {
    std::vector<xcb_window_t> all = windows(stacking);
    if (all.empty()) all = windows(clients);
    const std::string wanted = lowered(name);
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&](xcb_window_t window) { return isOf(window, wanted); });
    return found == all.rend() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : *found;
}

bool X11ScriptDesktop::hasApplication(std::string_view name) {
    const auto opened = server();
    return opened && opened.value()->findWindow(name) != XCB_WINDOW_NONE;
}

Result<void> X11ScriptDesktop::activate(std::string_view name) {
    const auto opened = server();
    if (!opened) return opened.error();
    const Server& server = *opened.value();
    const xcb_window_t window = server.findWindow(name);
    if (window == XCB_WINDOW_NONE)
        return Error{"No window of “" + std::string(name) + "” is open.", "Start it first."};
    server.focus.request(window, WindowFocus::Source::pager, 0);
    server.connection.roundTrip();
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isActive = [&] { return server.focus.activeWindow() == window && server.focus.isIn(window); };
    while (!isActive() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
    return {};
}

}  // namespace x11
