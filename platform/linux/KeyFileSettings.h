// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/Result.h"
#include "platform/SettingsStore.h"
#include "platform/linux/ConfigFolders.h"

class KeyFile;
class StoreSchedule;
class UserKeyFile;

/// Settings in key files, keyrill/keyrill.conf in each of the configuration folders: the user's own first,
/// then the system's in their order. The first file that has a key gives its value; only the user's is
/// written.
///
/// Format: that of the desktop entry standard, group [Settings]; integers in decimal, booleans "true"
/// and "false". Read once, by the constructor; a file that is not there is no fault. A user's file that
/// cannot be read is renamed to keyrill.conf.bad-TIME (UTC), a link by itself without what it leads to, and
/// what a killed run left beside it is removed. Before a write the file is read again, so that what others
/// changed in it meanwhile is kept.
///
/// Modes: 0600 for the file, 0700 for a folder that has to be made.
class KeyFileSettings : public SettingsStore {
  public:
    /// A reader changes no file: what cannot be read is a fault and stays, and nothing is ever set.
    enum class Use { readAndWrite, readOnly };

    KeyFileSettings(const ConfigFolders& folders, Use use);
    /// `awaitTurnEnd` is called with the first set of each turn of the event loop; endTurn() has to follow.
    explicit KeyFileSettings(const ConfigFolders& folders, std::function<void()> awaitTurnEnd = {});
    /// Stores what is not stored yet.
    ~KeyFileSettings() override;
    KeyFileSettings(const KeyFileSettings&) = delete;
    KeyFileSettings& operator=(const KeyFileSettings&) = delete;

    /// Also 0 for an integer beyond 64 bits.
    std::optional<std::int64_t> integer(const std::string& key) const override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void setBool(const std::string& key, bool value) override;
    Result<> synchronize() override;
    std::optional<Error> takeFault() override;

    /// Stores what was set in this turn of the loop, unless that was done or tried. A failure is a fault; one
    /// that lasts is told once.
    void endTurn();

  private:
    KeyFileSettings(const ConfigFolders& folders, Use use, std::function<void()> awaitTurnEnd);

    void set(const std::string& key, std::int64_t value, const std::string& text);
    Result<> store();
    /// Adds what a file has and no earlier one had.
    void add(const KeyFile& file);

    std::unique_ptr<StoreSchedule> m_schedule;
    std::unique_ptr<UserKeyFile> m_file;
    std::map<std::string, std::int64_t> m_values;
    /// What was set, as it is written, since the last write that succeeded.
    std::map<std::string, std::string> m_unstored;
};
