// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Result.h"
#include "platform/run/CompanionProcess.h"
#include "platform/run/RunCompanion.h"
#include "platform/x11/guard/GuardMessage.h"

namespace x11 {

/// The guard program, and the line to it whose end it acts on. One guard serves all runs of a process.
///
/// Nothing here waits for the guard, so that one that hangs holds nobody up; isReady() tells when it has
/// taken in what it was told. One that ends is replaced by the next look(), or by the next word to it.
class GuardLink final : public RunCompanion {
  public:
    /// `program` is the guard, or empty to look for it beside the running program and where it is installed.
    GuardLink(std::string program, std::string display, std::string markFile);
    ~GuardLink() override;
    GuardLink(const GuardLink&) = delete;
    GuardLink& operator=(const GuardLink&) = delete;

    /// Tells the guard, which is started first if there is none or it has ended. Fails with a hint if none
    /// can be started.
    Result<void> tell(const GuardMessage& message);

    /// Whether there is a guard that has taken in the last message. As of the last look().
    bool isReady() const { return m_process.isOpen() && m_heard == m_expected; }
    /// Ends a guard that does not answer, and starts another.
    Result<void> replace();

    // RunCompanion
    int fileDescriptor() const override { return m_process.fileDescriptor(); }
    Result<void> look() override;

    /// What is said of a guard that cannot be started.
    Error cannotStart() const;

    /// Whether there is a program to start.
    bool isThere() const { return static_cast<bool>(find()); }

  private:
    Result<void> start();
    Result<std::string> find() const;
    bool send(const GuardMessage& message);

    std::string m_program;
    std::string m_display;
    std::string m_markFile;
    CompanionProcess m_process;
    std::optional<GuardMessage> m_told;
    /// The guard's answers, and how many there will be when it knows all.
    std::size_t m_heard = 0;
    std::size_t m_expected = 0;
};

}  // namespace x11
