// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"

/// A message bus with nobody else on it, and no services that it could start. Ends with the object.
class PrivateBus {
  public:
    PrivateBus();

    const std::string& address() const { return m_address; }
    /// As a crash would.
    void die() const { m_daemon->signal(9); }
    /// Another one at the same address, after this one has died.
    void comeBack();

  private:
    void start();

    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_daemon;
    std::string m_address;
};

/// Another process on a bus, which stands in for services (bus_standin.py).
class StandIn {
  public:
    StandIn(const PrivateBus& bus, const std::vector<std::string>& services);

    /// A line of its commands.
    void obey(const std::string& command) const;
    /// The lines that it has printed about what it was told.
    std::string heard() const { return contentOf(m_log); }
    /// How many of them have that text in them.
    std::size_t count(const std::string& text) const;
    void signal(int number) const { m_process->signal(number); }

  private:
    TemporaryFolder m_folder;
    const std::string m_pipe;
    const std::string m_log;
    std::unique_ptr<Child> m_process;
};
