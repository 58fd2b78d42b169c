// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/Result.h"

/// When a recording ended, by the calendar.
using RecordedAt = std::chrono::sys_time<std::chrono::milliseconds>;

/// A recording that outlives the program.
struct StoredRecording {
    /// Given by the store, unique in it; empty while it is not stored.
    std::string name = {};
    RecordedAt recordedAt = {};
    /// What a menu shows of it, UTF-8; line ends in it become blanks.
    std::string title = {};
    /// The script that plays it, UTF-8.
    std::string script = {};

    friend bool operator==(const StoredRecording&, const StoredRecording&) = default;
};

/// The recordings that the program keeps for its next starts, for the user alone. Several programs of a user
/// may have it open.
class RecordingStore {
  public:
    /// Of more the earliest goes, never the one that is being kept.
    static constexpr std::size_t most = 50;

    virtual ~RecordingStore() = default;

    /// The latest first, not more than the most. What cannot be read is left out.
    virtual std::vector<StoredRecording> all() = 0;

    /// Stores it, whole or not at all; its name. The error tells why it could not be written.
    virtual Result<std::string> keep(const StoredRecording& recording) = 0;

    /// Nothing of it is left in the store; nothing happens where there is none of that name. The error tells
    /// why it is still there.
    virtual Result<> forget(const std::string& name) = 0;

    /// The same for all of them.
    virtual Result<> forgetAll() = 0;
};
