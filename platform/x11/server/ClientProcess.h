// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

namespace x11 {

class XConnection;

/// The process on this machine whose connection has made the window, as the server knows it (X-Resource 1.2);
/// 0 where it comes from another machine, where the window has gone, and where the server does not tell.
pid_t processOf(const XConnection& connection, xcb_window_t window);

}  // namespace x11
