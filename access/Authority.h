// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <string>

namespace keyaccess {

/// polkit, asked by its bus interface (org.freedesktop.PolicyKit1.Authority).
class Authority {
  public:
    explicit Authority(GDBusConnection* bus) : m_bus(bus) {}

    /// Whether the caller of that unique name may do the action; the user may be asked for his password where
    /// `mayAsk`. No answer is no.
    void check(const std::string& caller, const char* action, bool mayAsk,
               std::function<void(bool)> answered) const;

    /// Takes the caller's question back, as where he has left.
    void cancel(const std::string& caller) const;

  private:
    GDBusConnection* m_bus;
};

}  // namespace keyaccess
