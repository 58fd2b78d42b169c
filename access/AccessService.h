// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <chrono>
#include <functional>
#include <memory>

namespace keyaccess {

class InputDevices;

/// The names by which programs find the service.
inline constexpr const char* busName = "example.orlen.Keyrill.Access";
inline constexpr const char* objectPath = "/example/orlen/Keyrill/Access";
inline constexpr const char* interfaceName = "example.orlen.Keyrill.Access1";

/// Gives keyboards to programs that the user allows it, and takes them back.
///
/// | method                                | what it does | | OpenKeyboards(b mayAsk) -> a(sh)      | the
/// keyboards that the caller does not have yet, read only        | | Close()                               |
/// revokes them                                                      | | OpenTyping(b mayAsk) | makes a
/// keyboard that the caller types on                         | | Type(a(qy))                           |
/// presses (1) and releases (0) keys of it, by the kernel's codes    | | CloseTyping() | the keyboard is
/// gone, and what was down on it is up               |
///
/// Errors are org.freedesktop.DBus.Error.AccessDenied where polkit or the session forbid it, LimitsExceeded
/// for a second question before the first is answered or too many callers, InvalidArgs, Failed.
///
/// All that a caller has ends when he leaves the bus, and when his session is no longer in front, is locked
/// or ends; each caller needs a permission of his own. To open keyboards that were plugged in later, who has
/// some is not asked again.
class AccessService {
  public:
    struct Rest {
        /// How long nobody has or asks for anything until `ended` is called.
        std::chrono::seconds after;
        std::function<void()> ended;
    };

    /// Serves from now on, in the thread's default main context. All that is referred to outlives this.
    AccessService(GDBusConnection* bus, InputDevices& devices, Rest rest);
    ~AccessService();
    AccessService(const AccessService&) = delete;
    AccessService& operator=(const AccessService&) = delete;

  private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace keyaccess
