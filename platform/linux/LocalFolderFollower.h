// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/EventSource.h"
#include "platform/FolderFollower.h"

/// Follows a folder in the file system, on a thread of its own: reading one on another machine can take as
/// long as that machine likes.
class LocalFolderFollower : public FolderFollower, public EventSource {
  public:
    LocalFolderFollower();
    /// Returns although the folder does not answer; its thread ends when it does, or with the process.
    ~LocalFolderFollower() override;
    LocalFolderFollower(const LocalFolderFollower&) = delete;
    LocalFolderFollower& operator=(const LocalFolderFollower&) = delete;

    void follow(const std::string& folder, const std::string& ending, Observer observer) override;

    int fileDescriptor() const override;
    void dispatch() override;

    /// What happens is told once nothing has happened for that long, and at the latest that long after the
    /// first of it.
    static constexpr std::chrono::milliseconds calm{30};
    static constexpr std::chrono::milliseconds latest{200};

  private:
    class Reader;

    std::shared_ptr<Reader> m_reader;
    Observer m_observer;
};
