// SPDX-License-Identifier: MIT
#include "platform/x11/X11Clipboard.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace {

constexpr std::chrono::milliseconds longestAnswer{1000};

xcb_window_t makeWindow(const XConnection& connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, connection.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

}  // namespace

struct X11Clipboard::Parts {
    Parts(XConnection serving, XConnection asking) : server(std::move(serving)), client(std::move(asking)) {}

    XConnection server;
    XConnection client;
    xcb_window_t owner = makeWindow(server);
    xcb_window_t asker = makeWindow(client);
    xcb_atom_t clipboard = server.atom("CLIPBOARD");
    xcb_atom_t targets = server.atom("TARGETS");
    xcb_atom_t utf8 = server.atom("UTF8_STRING");
    xcb_atom_t plain = server.atom("text/plain;charset=utf-8");
    xcb_atom_t answer = server.atom("KEYRILL_CLIPBOARD");
    std::mutex lock;
    std::string content;
    bool isOurs = false;
    std::atomic<bool> ends{false};
    int wakeup = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::thread thread{[this] { serve(); }};

    void wake() const {
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t written = ::write(wakeup, &one, sizeof one);
    }

    void serve() {
        while (!ends && !server.isBroken()) {
            while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(server)}) handle(*event);
            xcb_flush(server);
            std::array<pollfd, 2> entries{{{server.fileDescriptor(), POLLIN, 0}, {wakeup, POLLIN, 0}}};
            poll(entries.data(), entries.size(), -1);
            std::uint64_t count = 0;
            [[maybe_unused]] const ssize_t size = ::read(wakeup, &count, sizeof count);
        }
    }

    void handle(const xcb_generic_event_t& event) {
        constexpr std::uint8_t sent = 0x80;
        const std::lock_guard guard(lock);
        const int type = event.response_type & static_cast<std::uint8_t>(~sent);
        if (type == XCB_SELECTION_CLEAR) isOurs = false;
        if (type == XCB_SELECTION_REQUEST) {
            respond(reinterpret_cast<const xcb_selection_request_event_t&>(event));
        }
    }

    /// The answer lies in a property of whoever asked; none says that there is no such form of the text.
    void respond(const xcb_selection_request_event_t& request) {
        const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
        xcb_selection_notify_event_t reply{};
        reply.response_type = XCB_SELECTION_NOTIFY;
        reply.time = request.time;
        reply.requestor = request.requestor;
        reply.selection = request.selection;
        reply.target = request.target;
        reply.property = property;
        const std::array<xcb_atom_t, 4> forms{targets, utf8, plain, XCB_ATOM_STRING};
        const bool isText = std::find(forms.begin() + 1, forms.end(), request.target) != forms.end();
        if (request.target == targets) {
            xcb_change_property(server, XCB_PROP_MODE_REPLACE, request.requestor, property, XCB_ATOM_ATOM, 32,
                                static_cast<std::uint32_t>(forms.size()), forms.data());
        } else if (isText && content.size() < maxProperty()) {
            xcb_change_property(server, XCB_PROP_MODE_REPLACE, request.requestor, property, request.target, 8,
                                static_cast<std::uint32_t>(content.size()), content.data());
        } else {
            reply.property = XCB_ATOM_NONE;
        }
        xcb_send_event(server, 0, request.requestor, 0, reinterpret_cast<const char*>(&reply));
    }

    std::size_t maxProperty() const {
        constexpr std::size_t header = 64;
        return std::size_t{xcb_get_maximum_request_length(server)} * 4 - header;
    }
};

X11Clipboard::X11Clipboard(XConnection server, XConnection client)
    : m_parts(std::make_unique<Parts>(std::move(server), std::move(client))) {}

X11Clipboard::~X11Clipboard() {
    m_parts->ends = true;
    m_parts->wake();
    m_parts->thread.join();
    ::close(m_parts->wakeup);
}

Result<void> X11Clipboard::set(std::string_view text) {
    Parts& parts = *m_parts;
    if (text.size() >= parts.maxProperty()) return Error{"The text is too long for the clipboard.", ""};
    {
        const std::lock_guard guard(parts.lock);
        parts.content = text;
        parts.isOurs = true;
    }
    xcb_set_selection_owner(parts.server, parts.owner, parts.clipboard, XCB_CURRENT_TIME);
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        parts.server, xcb_get_selection_owner(parts.server, parts.clipboard), nullptr));
    // The reply may have brought events along, which no poll will tell of.
    parts.wake();
    if (!owner || owner->owner != parts.owner) return Error{"The clipboard is held by another program.", ""};
    return {};
}

Result<std::string> X11Clipboard::text() {
    Parts& parts = *m_parts;
    {
        const std::lock_guard guard(parts.lock);
        if (parts.isOurs) return parts.content;
    }
    xcb_convert_selection(parts.client, parts.asker, parts.clipboard, parts.utf8, parts.answer,
                          XCB_CURRENT_TIME);
    xcb_flush(parts.client);
    const auto end = std::chrono::steady_clock::now() + longestAnswer;
    for (;;) {
        const XReply<xcb_generic_event_t> event{xcb_poll_for_event(parts.client)};
        if (!event) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            pollfd entry{parts.client.fileDescriptor(), POLLIN, 0};
            if (left.count() <= 0 || parts.client.isBroken()) return std::string();
            poll(&entry, 1, static_cast<int>(left.count()));
            continue;
        }
        if ((event->response_type & 0x7F) != XCB_SELECTION_NOTIFY) continue;
        if (reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property == XCB_ATOM_NONE)
            return std::string();
        const XReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(parts.client,
                                   xcb_get_property(parts.client, 1, parts.asker, parts.answer,
                                                    XCB_GET_PROPERTY_TYPE_ANY, 0, 1U << 22U),
                                   nullptr));
        if (!reply || reply->format != 8) return std::string();
        return std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                           static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
    }
}
