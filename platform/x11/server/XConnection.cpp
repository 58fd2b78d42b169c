// SPDX-License-Identifier: MIT
#include "platform/x11/server/XConnection.h"

#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/Sentence.h"

namespace x11 {

namespace {

std::string displayName(const std::string& display) {
    if (!display.empty()) return display;
    const char* fromEnvironment = std::getenv("DISPLAY");
    return fromEnvironment == nullptr ? "" : fromEnvironment;
}

}  // namespace

Result<XConnection> XConnection::open(const std::string& display) {
    int screen = 0;
    Handle handle(xcb_connect(display.empty() ? nullptr : display.c_str(), &screen));
    if (xcb_connection_has_error(handle.get()) != 0) {
        return Error{
            sentence("Session", "The X server of display \"%1\" cannot be reached.")
                .arg(displayName(display)),
            sentence("Session",
                     "Start the program inside a desktop session, or set DISPLAY to a running X server.")};
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(handle.get()));
    for (; screen > 0 && screens.rem > 1; --screen) xcb_screen_next(&screens);
    const xcb_window_t root = screens.data->root;
    return XConnection(std::move(handle), root);
}

XConnection::XConnection(Handle connection, xcb_window_t root)
    : m_connection(std::move(connection)), m_root(root) {}

Event XConnection::awaitEvent() const {
    xcb_flush(get());
    return Event(xcb_wait_for_event(get()));
}

void XConnection::roundTrip() const {
    const auto reply = replyTo(get(), xcb_get_input_focus(get()), xcb_get_input_focus_reply);
}

void XConnection::findAtoms(std::span<const char* const> names, std::span<xcb_atom_t> found) const {
    std::vector<xcb_intern_atom_cookie_t> questions;
    for (const char* name : names) {
        const auto length = static_cast<std::uint16_t>(std::strlen(name));
        questions.push_back(xcb_intern_atom(get(), 0, length, name));
    }
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const auto reply = replyTo(get(), questions[i], xcb_intern_atom_reply);
        found[i] = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
}

xcb_window_t XConnection::ownerOf(xcb_atom_t selection) const {
    const auto reply =
        replyTo(get(), xcb_get_selection_owner(get(), selection), xcb_get_selection_owner_reply);
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

}  // namespace x11
