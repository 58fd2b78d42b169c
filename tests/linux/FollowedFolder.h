// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include "platform/linux/LocalFolderFollower.h"
#include "support/Child.h"

/// A folder with a follower, and the loop around it. What is done there is done at once, as far as can be
/// seen from the folder.
class FollowedFolder {
  public:
    FolderFollower& follower() { return m_counting; }
    LocalFolderFollower& localFollower() { return m_follower; }
    const std::string& path() const { return m_path; }
    std::string file(const std::string& name) const { return m_path + "/" + name; }
    /// Beside the folder, on the same file system.
    std::string elsewhere(const std::string& name) const { return m_home.file("elsewhere/" + name); }

    void writes(const std::string& name, const std::string& text) {
        if (std::filesystem::exists(file(name))) {
            std::ofstream(file(name), std::ios::binary) << text;
        } else {
            replaces(name, text);
        }
    }
    void replaces(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(file(name)).parent_path());
        std::ofstream(elsewhere("new"), std::ios::binary) << text;
        std::filesystem::rename(elsewhere("new"), file(name));
    }
    void removes(const std::string& name) {
        std::filesystem::rename(file(name), elsewhere("old"));
        std::filesystem::remove_all(elsewhere("old"));
    }

    /// Until something is told.
    void awaitNews() {
        const int before = m_counting.count;
        while (m_counting.count == before) {
            pollfd source{m_follower.fileDescriptor(), POLLIN, 0};
            constexpr int deadline = 10000;
            ASSERT_EQ(poll(&source, 1, deadline), 1) << "nothing is told";
            m_follower.dispatch();
        }
    }

  private:
    struct Counting : FolderFollower {
        explicit Counting(FolderFollower& all) : follower(all) {}
        void follow(const std::string& folder, const std::string& ending, Observer observer) override {
            follower.follow(folder, ending, [this, told = std::move(observer)](const FolderChanges& changes) {
                ++count;
                told(changes);
            });
        }

        FolderFollower& follower;
        int count = 0;
    };

    TemporaryFolder m_home;
    const std::string m_path =
        (std::filesystem::create_directory(m_home.file("elsewhere")),
         std::filesystem::create_directory(m_home.file("macros")), m_home.file("macros"));
    LocalFolderFollower m_follower;
    Counting m_counting{m_follower};
};
