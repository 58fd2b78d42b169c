// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace x11 {

/// Frees what xcb allocated with malloc: replies, events, errors.
struct XFree {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using XReply = std::unique_ptr<Reply, XFree>;

/// Waits for what the server answers; null where it refuses, or is gone.
template <typename Reply, typename Cookie>
XReply<Reply> replyTo(xcb_connection_t* connection, Cookie cookie,
                      Reply* (*reply)(xcb_connection_t*, Cookie, xcb_generic_error_t**)) {
    return XReply<Reply>(reply(connection, cookie, nullptr));
}

/// Waits for the outcome of a checked request: why the server refuses it; null where it has done it, or is
/// gone.
inline XReply<xcb_generic_error_t> refusalOf(xcb_connection_t* connection, xcb_void_cookie_t cookie) {
    return XReply<xcb_generic_error_t>(xcb_request_check(connection, cookie));
}

}  // namespace x11
