// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/RecordingStore.h"
#include "platform/fake/NextError.h"

/// Recordings in memory, named "1", "2" and so on.
class FakeRecordings : public RecordingStore {
  public:
    std::vector<StoredRecording> all() override { return m_recordings; }
    Result<std::string> keep(const StoredRecording& recording) override;
    Result<> forget(const std::string& name) override;
    Result<> forgetAll() override;

    /// The titles of what is stored, the latest first.
    std::vector<std::string> titles() const;
    /// The next that is to be kept or forgotten is not.
    void failNextCall(const Error& error) { m_nextError.set(error); }

  private:
    /// The latest first.
    std::vector<StoredRecording> m_recordings;
    int m_lastName = 0;
    NextError m_nextError;
};
