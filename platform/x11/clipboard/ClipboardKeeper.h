// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/x11/server/XConnection.h"

namespace x11 {

/// Starts a process in the background that owns the selection CLIPBOARD with a text, as if from `time` on, a
/// time of the server, and ends when a clipboard manager has fetched the text or another client owns the
/// selection. Returns when it does own it, so that there is never nobody; if another client has taken it
/// since, nothing comes of it.
///
/// Why not wait for the manager here: some fetch the text, but never say so.
void keepInBackground(const std::string& display, const std::string& text, xcb_timestamp_t time);

}  // namespace x11
