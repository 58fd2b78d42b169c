// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "platform/FolderFollower.h"
#include "platform/fake/FakeMacroFiles.h"

/// Follows the fake files. Changes are told when a test delivers them.
class FakeFolderFollower : public FolderFollower {
  public:
    /// `files` outlives this.
    explicit FakeFolderFollower(FakeMacroFiles& files) : m_files(files) {}

    void follow(const std::string& folder, const std::string& ending, Observer observer) override;

    /// The user, by the paths from the folder. Renaming and removing take a folder as well.
    void userWrites(const std::string& path, const std::string& text);
    /// A new file is put in the place of the one that is there.
    void userReplaces(const std::string& path, const std::string& text);
    void userRenames(const std::string& from, const std::string& to);
    void userRemoves(const std::string& path);
    /// What of the folder cannot be read from now on.
    void hasFaults(std::vector<Error> faults) { m_faults = std::move(faults); }

    /// Tells what has changed since the last time; nothing where nothing has.
    void deliver();

  private:
    struct Known {
        std::uint64_t number = 0;
        std::uint64_t version = 0;
        std::string text;
    };

    std::string absolute(const std::string& path) const;
    bool isFollowed(const std::string& path) const;
    FolderListing listing();

    FakeMacroFiles& m_files;
    std::string m_folder = FakeMacroFiles::usualFolder;
    std::string m_ending;
    Observer m_observer;
    /// Files by their absolute paths.
    std::map<std::string, Known> m_known;
    std::uint64_t m_last = 0;
    FolderListing m_told;
    std::vector<Error> m_faults;
    std::vector<Error> m_toldFaults;
    bool m_hasTold = false;
};
