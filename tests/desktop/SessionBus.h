// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "support/Child.h"

/// A session bus of its own. Of the machine's services it starts only those that are let in.
class SessionBus {
  public:
    /// The environment is that of the services which the bus starts.
    explicit SessionBus(std::map<std::string, std::string> environment);

    const std::string& address() const { return m_address; }
    /// Lets the bus start a service of the machine when somebody asks for it.
    void letIn(const std::string& service) const;
    Child& daemon() { return *m_daemon; }
    /// Another one at the same address, after the first has died.
    void restart();

  private:
    std::string services() const { return m_folder.file("services"); }

    void start();

    std::map<std::string, std::string> m_environment;
    TemporaryFolder m_folder;
    std::string m_address;
    std::unique_ptr<Child> m_daemon;
};
