// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <memory>
#include <string>
#include <string_view>

/// Calls a function of GLib to free a thing.
template <auto free>
struct FreeBy {
    template <typename Thing>
    void operator()(Thing* thing) const {
        free(thing);
    }
};

using GText = std::unique_ptr<char, FreeBy<g_free>>;
using GTexts = std::unique_ptr<char*, FreeBy<g_strfreev>>;
using GFailure = std::unique_ptr<GError, FreeBy<g_error_free>>;
using GKeyFilePointer = std::unique_ptr<GKeyFile, FreeBy<g_key_file_free>>;

/// The last part of a failure's message, which is the system's word for its cause: "Failed to write file
/// “a.1B2C3D”: write() failed: No space left on device" names a file that nobody knows.
inline std::string causeOf(const GError& failure) {
    const std::string_view message = failure.message;
    const auto colon = message.rfind(": ");
    return std::string(colon == std::string_view::npos ? message : message.substr(colon + 2));
}
