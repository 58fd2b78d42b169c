// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Where the parts of an installation lie, by the place of its programs: a tree that was moved as a whole
/// still works. The paths are as absolute as that place; they need not exist.
class Installation {
  public:
    /// By the folder of the programs.
    explicit Installation(std::string programs);
    /// The one that the running program belongs to.
    static Installation ofProcess();

    const std::string& programs() const { return m_programs; }
    /// The folder of the programs that run beside others and that no user starts.
    std::string companions() const;
    /// The folder of the presets, as XDG_CONFIG_DIRS names such folders. What is installed below /usr has its
    /// presets in /etc/xdg instead.
    std::string presets() const;
    /// The folder of the pictures.
    std::string pictures() const;
    /// The folder of the icon themes.
    std::string icons() const;
    /// The first page of the manual, a file: the translation into that language ("de") if it is there, else
    /// the English one. Empty is English.
    std::string manual(std::string_view language = {}) const;

  private:
    std::string place(std::string_view fromPrograms) const;

    std::string m_programs;
};

/// The URL of a file by its absolute path, any bytes. Unescaped stay A-Z a-z 0-9 -._~/
std::string fileUrl(std::string_view path);

/// The URL of the manual: as it was set when building, else that of the installation, as
/// Installation::manual(language) finds it.
std::string documentationPage(std::string_view language = {});
