// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/RecordStore.h"

class KeyFile;
class StoreSchedule;
class UserKeyFile;

/// What the program keeps of the user's macros, in the key file keyrill/macros.conf of the user's
/// configuration folder.
///
/// Format: that of the desktop entry standard, a group a record. In a group's name all that cannot stand
/// there is written as its bytes, %5B for a bracket. Read with the first call; a file that is not there is no
/// fault, and one that cannot be read is renamed to macros.conf.bad-TIME (UTC). Before a write it is read
/// again, so that what others have changed in other records meanwhile is kept.
///
/// Modes: 0600 for the file, 0700 for a folder that has to be made.
class KeyFileRecords : public RecordStore {
  public:
    /// `configFolder` is the user's (ConfigFolders.h). `awaitTurnEnd` is called with the first set of each
    /// turn of the event loop; endTurn() has to follow.
    explicit KeyFileRecords(const std::string& configFolder, std::function<void()> awaitTurnEnd = {});
    /// Stores what is not stored yet.
    ~KeyFileRecords() override;
    KeyFileRecords(const KeyFileRecords&) = delete;
    KeyFileRecords& operator=(const KeyFileRecords&) = delete;

    const std::map<std::string, Record>& records() override;
    void set(const std::string& name, const Record& record) override;
    Result<> synchronize() override;
    std::optional<Error> takeFault() override;

    /// Stores what was set in this turn of the loop, unless that was done or tried. A failure is a fault; one
    /// that lasts is told once.
    void endTurn();

  private:
    Result<> store();

    std::unique_ptr<StoreSchedule> m_schedule;
    std::unique_ptr<UserKeyFile> m_file;
    std::map<std::string, Record> m_records;
    bool m_isRead = false;
    /// What was set since the last write that succeeded.
    std::map<std::string, Record> m_unstored;
};
