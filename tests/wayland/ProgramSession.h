// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "compositor/Compositor.h"
#include "compositor/Hands.h"
#include "support/Child.h"
#include "support/Keys.h"

/// keyrill itself in a Wayland session of the test's own, with the preset combinations, and the hands of its
/// user.
class ProgramSession {
  public:
    virtual ~ProgramSession() = default;

    /// Starts the program with a macro of these lines, and waits until it is up.
    virtual void start(const std::string& lines) = 0;
    virtual const Compositor& compositor() const = 0;
    virtual Hands& hands() = 0;
    virtual Child& program() = 0;

    /// Before start(); there is none otherwise.
    void setSystemBus(const std::string& address) { m_systemBus = address; }

    bool shows(const std::string& title) const { return compositor().shows(title); }
    void strokeHotKey(std::uint8_t key) { hands().stroke({xkey::control, xkey::super, key}); }

  protected:
    ProgramSession() = default;
    ProgramSession(const ProgramSession&) = default;
    ProgramSession& operator=(const ProgramSession&) = default;

    const std::string& systemBus() const { return m_systemBus; }

  private:
    std::string m_systemBus = "unix:path=/nonexistent/system-bus";
};

using ProgramSessionFactory = std::unique_ptr<ProgramSession> (*)();
