// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/Child.h"

/// A private virtual X server (Xvfb) with nobody else on it; ends with the object. A server that cannot be
/// started fails the test by an exception.
class XServer {
  public:
    /// `command` is the server and its options; -displayfd is added.
    explicit XServer(std::vector<std::string> command = {"Xvfb", "-screen", "0", "1280x800x24", "-nolisten",
                                                         "tcp", "-noreset", "-dpi", "96"},
                     const std::map<std::string, std::string>& environment = {});

    /// ":N"
    const std::string& display() const { return m_display; }
    pid_t pid() const { return m_server->pid(); }
    Child& program() { return *m_server; }

  private:
    TemporaryFolder m_folder;
    std::unique_ptr<Child> m_server;
    std::string m_display;
};
