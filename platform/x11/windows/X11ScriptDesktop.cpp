// SPDX-License-Identifier: MIT
#include "platform/x11/windows/X11ScriptDesktop.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/Parts.h"
#include "platform/Sentence.h"
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
    /// The program's name and the class's.
    std::vector<std::string> namesOf(xcb_window_t window) const;
    /// The window that keys go to, of those that the window manager knows.
    xcb_window_t frontWindow() const;
    std::vector<xcb_window_t> windows(xcb_atom_t list) const;
    /// Those that the window manager knows, the lowest first.
    std::vector<xcb_window_t> managedWindows() const;
    std::vector<std::string> applications() const;

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

/// WM_CLASS holds two texts, each ended by a zero.
std::vector<std::string> X11ScriptDesktop::Server::namesOf(xcb_window_t window) const {
    constexpr std::uint32_t most = 1024;
    const std::string both = Property(connection, window, XCB_ATOM_WM_CLASS).text(XCB_ATOM_STRING, most);
    std::vector<std::string> names;
    for (std::string_view rest = both; !rest.empty();) names.emplace_back(takePart(rest, '\0'));
    return names;
}

bool X11ScriptDesktop::Server::isOf(xcb_window_t window, const std::string& name) const {
    const std::vector<std::string> names = namesOf(window);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& one) { return lowered(one) == name; });
}

/// The manager names it at once; without a manager the focus tells, which may lie in a window inside.
xcb_window_t X11ScriptDesktop::Server::frontWindow() const {
    const xcb_window_t active = focus.activeWindow();
    return active != XCB_WINDOW_NONE ? active : focus.holder();
}

std::vector<xcb_window_t> X11ScriptDesktop::Server::managedWindows() const {
    const std::vector<xcb_window_t> all = windows(stacking);
    return all.empty() ? windows(clients) : all;
}

/// By their classes.
std::vector<std::string> X11ScriptDesktop::Server::applications() const {
    std::vector<xcb_window_t> all = managedWindows();
    if (const xcb_window_t front = frontWindow(); front != XCB_WINDOW_NONE) all.push_back(front);
    std::vector<std::string> found;
    for (auto window = all.rbegin(); window != all.rend(); ++window) {
        const std::vector<std::string> names = namesOf(*window);
        const auto isSame = [&](const std::string& one) { return lowered(one) == lowered(names.back()); };
        if (!names.empty() && std::none_of(found.begin(), found.end(), isSame)) found.push_back(names.back());
    }
    return found;
}

xcb_window_t X11ScriptDesktop::Server::findWindow(std::string_view name) const {
    const std::vector<xcb_window_t> all = managedWindows();
    const std::string wanted = lowered(name);
    const auto found =
        std::find_if(all.rbegin(), all.rend(), [&](xcb_window_t window) { return isOf(window, wanted); });
    return found == all.rend() ? static_cast<xcb_window_t>(XCB_WINDOW_NONE) : *found;
}

bool X11ScriptDesktop::hasApplication(std::string_view name) {
    const auto opened = server();
    return opened && opened.value()->findWindow(name) != XCB_WINDOW_NONE;
}

Result<std::vector<std::string>> X11ScriptDesktop::applications() {
    const auto opened = server();
    if (!opened) return opened.error();
    return opened.value()->applications();
}

bool X11ScriptDesktop::isInFront(std::string_view name) {
    const auto opened = server();
    if (!opened) return false;
    const xcb_window_t window = opened.value()->frontWindow();
    return window != XCB_WINDOW_NONE && opened.value()->isOf(window, lowered(name));
}

Result<void> X11ScriptDesktop::activate(std::string_view name) {
    const auto opened = server();
    if (!opened) return opened.error();
    const Server& server = *opened.value();
    const xcb_window_t window = server.findWindow(name);
    if (window == XCB_WINDOW_NONE)
        return Error{sentence("Windows", "No window of “%1” is open.").arg(name),
                     sentence("Windows", "Start it first.")};
    server.focus.request(window, WindowFocus::Source::pager, 0);
    server.connection.roundTrip();
    const Clock::Time end = m_clock.now() + longestWait;
    const auto isActive = [&] { return server.focus.activeWindow() == window && server.focus.isIn(window); };
    while (!isActive() && m_clock.now() < end) m_clock.sleepFor(betweenLooks);
    return {};
}

}  // namespace x11
