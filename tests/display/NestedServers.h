// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "display/Hands.h"
#include "support/XServer.h"

/// A server inside the window of another one. What is pressed outside arrives inside as the keys of a real
/// keyboard: on a device that is none of XTEST's.
class NestedServers {
  public:
    /// `options` are more options of the inner server.
    explicit NestedServers(const std::vector<std::string>& options = {});

    const std::string& display() const { return m_inner->display(); }
    /// Where the real keyboard is.
    const std::string& outerDisplay() const { return m_outer.display(); }
    /// The user's hands at the real keyboard.
    const Hands& user() const { return *m_user; }
    /// Another program at the inner server.
    const Hands& program() const { return *m_program; }
    /// Waits until what the user did has arrived inside and has been told to everybody. A key that comes
    /// while the inner server paints waits there until a client asks for something: where no other client
    /// does, this is called again and again.
    void finish() const;

  private:
    XServer m_outer;
    std::unique_ptr<XServer> m_inner;
    std::unique_ptr<Hands> m_user;
    std::unique_ptr<Hands> m_program;
};
