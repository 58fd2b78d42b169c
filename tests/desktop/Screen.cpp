// SPDX-License-Identifier: MIT
#include "desktop/Screen.h"

#include <algorithm>
#include <cctype>
#include <iomanip>
#include <set>
#include <sstream>

namespace {

// Programs have helper windows of a pixel or a few.
constexpr int smallest = 12;

bool hasWord(const std::string& words, const std::string& word) {
    std::istringstream stream(words);
    for (std::string next; stream >> next;) {
        if (next == word) return true;
    }
    return false;
}

}  // namespace

Screen::Screen(const std::string& display)
    : m_connection(x11::XConnection::open(display).value()),
      m_name(m_connection.atom("_NET_WM_NAME")),
      m_active(m_connection.atom("_NET_ACTIVE_WINDOW")),
      m_unmapped(xcb_generate_id(m_connection)) {
    xcb_create_window(m_connection, 0, m_unmapped, m_connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

std::vector<ScreenWindow> Screen::windows() const {
    std::vector<ScreenWindow> found;
    collect(m_connection.root(), 0, 0, found);
    return found;
}

std::optional<ScreenWindow> Screen::find(const std::string& windowClass, const std::string& title) const {
    for (const ScreenWindow& window : windows()) {
        if (window.width >= smallest && window.height >= smallest && window.title == title &&
            hasWord(window.windowClass, windowClass))
            return window;
    }
    return std::nullopt;
}

std::string Screen::colourAt(int x, int y) const {
    const std::vector<std::uint32_t> point = pixels(x, y, 1, 1);
    if (point.empty()) return {};
    std::ostringstream colour;
    colour << '#' << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << point.front();
    return colour.str();
}

std::size_t Screen::colours(const ScreenWindow& window) const {
    const std::vector<std::uint32_t> all = pixels(window.x, window.y, window.width, window.height);
    return std::set<std::uint32_t>(all.begin(), all.end()).size();
}

Screen::Brightness Screen::brightness(const ScreenWindow& window) const {
    Brightness found;
    for (const std::uint32_t pixel : pixels(window.x, window.y, window.width, window.height)) {
        const int mean = static_cast<int>((pixel & 0xFF) + (pixel >> 8 & 0xFF) + (pixel >> 16 & 0xFF)) / 3;
        found.least = std::min(found.least, mean);
        found.most = std::max(found.most, mean);
    }
    return found;
}

// The virtual servers have 24 bits in four bytes a pixel, blue first.
std::vector<std::uint32_t> Screen::pixels(int x, int y, int width, int height) const {
    constexpr std::uint32_t allPlanes = ~0U;
    const auto question =
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection.root(),
                      static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), allPlanes);
    const x11::XReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_connection, question, nullptr));
    if (!reply) return {};
    const std::uint8_t* bytes = xcb_get_image_data(reply.get());
    std::vector<std::uint32_t> found(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::uint32_t& pixel : found) {
        pixel =
            bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 | static_cast<std::uint32_t>(bytes[2]) << 16;
        bytes += 4;
    }
    return found;
}

std::uint32_t Screen::focus() const {
    const x11::XReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply->focus;
}

std::uint32_t Screen::activeWindow() const {
    const auto question =
        xcb_get_property(m_connection, 0, m_connection.root(), m_active, XCB_ATOM_WINDOW, 0, 1);
    const x11::XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, question, nullptr));
    if (!reply || reply->value_len != 1) return XCB_WINDOW_NONE;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

// A window that is not on the screen gets no grab, but an answer that tells of another's.
bool Screen::isKeyboardGrabbed() const {
    const auto question = xcb_grab_keyboard(m_connection, 0, m_unmapped, XCB_CURRENT_TIME,
                                            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const x11::XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection, question, nullptr));
    return reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

bool Screen::isAnythingGrabbed() const {
    const auto question =
        xcb_grab_pointer(m_connection, 0, m_unmapped, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                         XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    const x11::XReply<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(m_connection, question, nullptr));
    return reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED || isKeyboardGrabbed();
}

bool Screen::isOwned(const std::string& selection) const {
    const auto question = xcb_get_selection_owner(m_connection, m_connection.atom(selection));
    const x11::XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, question, nullptr));
    return reply->owner != XCB_WINDOW_NONE;
}

// Windows go while they are looked at; those are left out.
void Screen::collect(xcb_window_t window, int x, int y, std::vector<ScreenWindow>& found) const {
    const auto treeQuestion = xcb_query_tree(m_connection, window);
    const auto stateQuestion = xcb_get_window_attributes(m_connection, window);
    const auto placeQuestion = xcb_get_geometry(m_connection, window);
    const x11::XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(m_connection, treeQuestion, nullptr));
    const x11::XReply<xcb_get_window_attributes_reply_t> state(
        xcb_get_window_attributes_reply(m_connection, stateQuestion, nullptr));
    const x11::XReply<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(m_connection, placeQuestion, nullptr));
    if (!tree || !state || !place || state->map_state != XCB_MAP_STATE_VIEWABLE) return;

    const int left = x + place->x;
    const int top = y + place->y;
    std::string title = text(window, m_name);
    if (title.empty()) title = text(window, XCB_ATOM_WM_NAME);
    found.push_back({window, title, text(window, XCB_ATOM_WM_CLASS), left, top, place->width, place->height});

    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    const int count = xcb_query_tree_children_length(tree.get());
    for (int i = 0; i < count; ++i) collect(children[i], left, top, found);
}

// The words of a class are ended by zeros.
std::string Screen::text(xcb_window_t window, xcb_atom_t property) const {
    constexpr std::uint32_t longest = 256;
    const auto question =
        xcb_get_property(m_connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    const x11::XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, question, nullptr));
    if (!reply || reply->format != 8) return {};
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    std::string result(static_cast<const char*>(xcb_get_property_value(reply.get())), length);
    std::replace(result.begin(), result.end(), '\0', ' ');
    if (property == XCB_ATOM_WM_CLASS) {
        std::transform(result.begin(), result.end(), result.begin(),
                       [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    }
    return result;
}
