// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace keyaccess {

/// Who a caller is.
struct Identity {
    std::uint32_t user = 0;
    std::uint32_t process = 0;
    /// The path of his session with logind.
    std::string session;
};

/// The sessions of the machine, as logind tells of them (org.freedesktop.login1).
class LoginSessions {
  public:
    using Found = std::function<void(std::optional<Identity>)>;

    explicit LoginSessions(GDBusConnection* bus);
    ~LoginSessions();
    LoginSessions(const LoginSessions&) = delete;
    LoginSessions& operator=(const LoginSessions&) = delete;

    /// Who the caller of that unique name is: the session of his process or, for those that the user's own
    /// service manager has started, the session in which the user has his display. Empty if there is none.
    void find(const std::string& caller, Found found) const;

    /// Whether the session is that user's own, at this machine, in front, and not locked.
    void check(const Identity& who, std::function<void(bool)> checked) const;

    /// Who is told when a session is no longer in front, is locked, or ends; with an empty path where that
    /// may be any.
    void observe(std::function<void(const std::string& session)> ended) { m_ended = std::move(ended); }

  private:
    void findSession(Identity who, Found found) const;
    void findDisplay(const Identity& who, const Found& found) const;
    static void onProperties(GDBusConnection* bus, const char* sender, const char* path,
                             const char* interface, const char* signal, GVariant* parameters, gpointer self);
    static void onRemoved(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                          const char* signal, GVariant* parameters, gpointer self);
    static void onOwner(GDBusConnection* bus, const char* sender, const char* path, const char* interface,
                        const char* signal, GVariant* parameters, gpointer self);

    GDBusConnection* m_bus;
    std::function<void(const std::string&)> m_ended;
    guint m_properties = 0;
    guint m_removed = 0;
    guint m_owner = 0;
};

}  // namespace keyaccess
