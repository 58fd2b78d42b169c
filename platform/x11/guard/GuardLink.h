// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "platform/Descriptor.h"
#include "platform/Result.h"
#include "platform/x11/guard/GuardMessage.h"

namespace x11 {

/// The guard program, and the line to it whose end it acts on. One guard serves all runs of a process.
class GuardLink {
  public:
    /// `program` is the guard, or empty to look for it beside the running program and where it is installed.
    GuardLink(std::string program, std::string display, std::string markFile);
    ~GuardLink();
    GuardLink(const GuardLink&) = delete;
    GuardLink& operator=(const GuardLink&) = delete;

    /// Tells the guard, which is started first if there is none or it has ended. Fails with a hint if none
    /// can be started.
    Result<void> tell(const GuardMessage& message);

  private:
    Result<void> start();
    Result<std::string> find() const;
    bool send(const GuardMessage& message) const;
    bool awaitReady() const;
    void end();

    std::string m_program;
    std::string m_display;
    std::string m_markFile;
    Descriptor m_socket;
    pid_t m_process = -1;
    std::optional<GuardMessage> m_told;
};

}  // namespace x11
