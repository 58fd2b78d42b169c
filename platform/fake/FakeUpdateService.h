// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/UpdateService.h"
#include "platform/fake/Journal.h"
#include "platform/fake/NextError.h"

/// A service that knows the version which was published last; none at first.
class FakeUpdateService : public UpdateService {
  public:
    explicit FakeUpdateService(Journal& journal) : m_journal(journal) {}

    bool isNewerThan(std::string_view runningVersion) override;

    void makerPublishes(const std::string& version) { m_newest = version; }
    /// The service is not reached the next time; the words stay in the service.
    void failNextCall(const Error& error) { m_nextError.set(error); }
    /// The running versions that it was asked with, in order.
    const std::vector<std::string>& questions() const { return m_questions; }

  private:
    Journal& m_journal;
    std::string m_newest;
    std::vector<std::string> m_questions;
    NextError m_nextError;
};
