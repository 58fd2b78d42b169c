// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/MacroFiles.h"

/// Macro files in the file system.
class LocalMacroFiles : public MacroFiles {
  public:
    /// `home` is the user's home folder, `dataFolder` that of the XDG base directory standard; absolute.
    LocalMacroFiles(std::string home, std::string dataFolder);

    /// "Library/Application Support/Keyrill" in the home folder where its parent exists; else "keyrill" in
    /// the data folder.
    std::string folder() const override;
    /// In the data folder it is made with its parents. What killed writers left there is removed.
    std::string prepareFolder() override;
    Result<std::string> read(const std::string& path) const override;
    /// An empty file is written for an empty text.
    Result<> write(const std::string& path, std::string_view text) override;

  private:
    /// Empty where its parent does not exist.
    std::optional<std::string> supportFolder() const;

    std::string m_home;
    std::string m_dataFolder;
};
