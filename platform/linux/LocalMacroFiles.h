// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MacroFiles.h"

/// Macro files in the file system.
class LocalMacroFiles : public MacroFiles {
  public:
    /// `home` is the user's home folder, `dataFolder` that of the XDG base directory standard; absolute.
    LocalMacroFiles(std::string home, std::string dataFolder);

    /// "Library/Application Support/Keyrill" in the home folder where its parent exists, made if nothing is
    /// there; else "keyrill" in the data folder, made with its parents. What killed writers left there is
    /// removed.
    std::string prepareFolder() override;
    Result<std::string> read(const std::string& path) const override;
    /// An empty file is written for an empty text.
    Result<> write(const std::string& path, std::string_view text) override;

  private:
    std::string m_home;
    std::string m_dataFolder;
};
