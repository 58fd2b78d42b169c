// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/RecordingStore.h"

/// Recordings in the folder "history" of the program's state folder, a macro file each: its name is the
/// time (UTC), "20261122T174012.345Z.keyrill", its first line a comment with the title. Files with other
/// names are none of ours.
///
/// Modes: 0600 for the files, 0700 for a folder that has to be made. Nothing is made before there is
/// something to keep.
class LocalRecordings : public RecordingStore {
  public:
    /// `stateFolder` is absolute and need not exist.
    explicit LocalRecordings(const std::string& stateFolder);

    std::vector<StoredRecording> all() override;
    Result<std::string> keep(const StoredRecording& recording) override;
    Result<> forget(const std::string& name) override;
    Result<> forgetAll() override;

    const std::string& folder() const { return m_folder; }

  private:
    /// Sorted, so the earliest first.
    std::vector<std::string> names() const;
    std::string fileOf(const std::string& name) const { return m_folder + "/" + name; }
    std::string freeName(RecordedAt time) const;

    std::string m_folder;
};
