// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

/// Where configuration files lie, by the XDG base directory standard, version 0.8. Absolute paths; they need
/// not exist.
struct ConfigFolders {
    /// The user's own.
    std::string user;
    /// The system's, the most important first; may be empty.
    std::vector<std::string> system;
    /// That of the program's own installation, beneath all others; empty if none.
    std::string installation = {};

    friend bool operator==(const ConfigFolders&, const ConfigFolders&) = default;
};

/// The value of an environment variable; empty if it is unset.
using Environment = std::function<std::string(const std::string& name)>;

/// By XDG_CONFIG_HOME (default ~/.config) and XDG_CONFIG_DIRS (default /etc/xdg). Relative paths in them are
/// ignored. `home` is the user's home folder.
ConfigFolders configFolders(const Environment& environment, const std::string& home);

/// The same for this process: its environment, its user's home and its installation.
ConfigFolders configFoldersOfProcess();

/// Where the user's data lie, by the same standard: XDG_DATA_HOME (default ~/.local/share), ignored where it
/// is relative. An absolute path; it need not exist.
std::string userDataFolder(const Environment& environment, const std::string& home);

/// What the program keeps of its own for its next starts, by the same standard: XDG_STATE_HOME (default
/// ~/.local/state), ignored where it is relative. An absolute path; it need not exist.
std::string userStateFolder(const Environment& environment, const std::string& home);

/// The variables of this process.
Environment environmentOfProcess();
/// The user's home folder, absolute.
std::string homeOfProcess();
/// The path of the file that this process runs, absolute; of the whole image where it runs from one
/// (APPIMAGE).
std::string programOfProcess();
