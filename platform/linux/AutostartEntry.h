// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"
#include "platform/linux/ConfigFolders.h"

/// The login item as an entry of the desktop application autostart standard, version 0.5:
/// autostart/example.orlen.Keyrill.desktop in the user's configuration folder, which stands before one of
/// that name in the system's folders.
///
/// An entry is ours when its program is ours and it is not hidden. The user has hidden it when it says
/// Hidden=true, or X-GNOME-Autostart-enabled=false, unless the program itself wrote it so to mask a
/// system-wide entry.
class AutostartEntry : public LoginItems {
  public:
    /// `programPath` is absolute. `sandboxMark` is a file that is there in a sandbox alone: its configuration
    /// folder is one in which no desktop looks for entries, so that none is added there.
    AutostartEntry(ConfigFolders folders, std::string programPath,
                   std::string sandboxMark = "/.flatpak-info");

    State state() const override;
    Result<> install(bool enable) override;
    Result<> reveal() override;

  private:
    struct Entry;

    std::string userPath() const;
    Entry usersEntry() const;
    bool isSystemwideOurs() const;
    Result<> add() const;
    Result<> remove() const;
    Result<> write(const std::string& content) const;

    ConfigFolders m_folders;
    std::string m_programPath;
    std::string m_sandboxMark;
};
