// SPDX-License-Identifier: MIT
//
// What only a file system can show; the rest is in the contract.
#include "platform/linux/LocalFolderFollower.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <set>

#include "linux/FollowedFolder.h"

namespace fs = std::filesystem;

namespace {

class LocalFolderFollowerTest : public testing::Test {
  protected:
    using Paths = std::vector<std::string>;

    void follow(const std::string& path) {
        folder.follower().follow(path, ".keyrill",
                                 [this](const FolderChanges& changes) { m_last = changes; });
    }
    /// And hears of what is there.
    FolderChanges begin() {
        follow(folder.path());
        return next();
    }
    FolderChanges next() {
        folder.awaitNews();
        return m_last;
    }

    FollowedFolder folder;

  private:
    FolderChanges m_last;
};

TEST_F(LocalFolderFollowerTest, aLinkToAFileIsOneAndWhatItLeadsToIsNotLookedAt) {
    std::ofstream(folder.elsewhere("a.keyrill")) << "a";
    fs::create_symlink(folder.elsewhere("a.keyrill"), folder.file("link.keyrill"));
    fs::create_symlink("nothing is there", folder.file("dangling.keyrill"));
    fs::create_symlink(folder.elsewhere("a.keyrill"), folder.file("link.txt"));
    EXPECT_EQ(begin(), (FolderChanges{.appeared = {"dangling.keyrill", "link.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, linksToFoldersAreNotEntered) {
    folder.writes("group/a.keyrill", "a");
    fs::create_directory_symlink(folder.path(), folder.file("group/again"));
    fs::create_directory_symlink(folder.elsewhere(""), folder.file("outside"));
    std::ofstream(folder.elsewhere("b.keyrill")) << "b";
    EXPECT_EQ(begin(), (FolderChanges{.appeared = {"group/a.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, pipesAndSocketsAreNone) {
    ASSERT_EQ(mkfifo(folder.file("pipe.keyrill").c_str(), 0600), 0);
    ASSERT_EQ(mknod(folder.file("socket.keyrill").c_str(), S_IFSOCK | 0600, 0), 0);
    folder.writes("a.keyrill", "a");
    EXPECT_EQ(begin(), (FolderChanges{.appeared = {"a.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, aFileThatTakesTheNumberOfOneThatIsGoneIsNotThatOneRenamed) {
    folder.writes("mine.keyrill", "mine");
    begin();
    struct stat before {};
    ASSERT_EQ(stat(folder.file("mine.keyrill").c_str(), &before), 0);
    fs::remove(folder.file("mine.keyrill"));
    // File systems give the numbers that are free to the next files; not all do so at once.
    struct stat after {};
    int tries = 0;
    const auto somebodys = [&] { return folder.file("somebodys" + std::to_string(tries) + ".keyrill"); };
    do {
        ++tries;
        std::ofstream(somebodys()) << "somebody's";
        ASSERT_EQ(stat(somebodys().c_str(), &after), 0);
    } while (after.st_ino != before.st_ino && tries < 100);
    FolderChanges changes = next();
    EXPECT_EQ(changes.renamed.size(), 0U);
    EXPECT_EQ(changes.gone, Paths{"mine.keyrill"});
}

TEST_F(LocalFolderFollowerTest, twoFilesChangeTheirNames) {
    folder.writes("a.keyrill", "a");
    folder.writes("b.keyrill", "b");
    begin();
    ASSERT_EQ(renameat2(AT_FDCWD, folder.file("a.keyrill").c_str(), AT_FDCWD,
                        folder.file("b.keyrill").c_str(), RENAME_EXCHANGE),
              0);
    EXPECT_EQ(next(), (FolderChanges{.renamed = {{"b.keyrill", "a.keyrill"}, {"a.keyrill", "b.keyrill"}}}));
}

TEST_F(LocalFolderFollowerTest, aSecondNameOfAFileIsAFile) {
    folder.writes("a.keyrill", "a");
    begin();
    fs::create_hard_link(folder.file("a.keyrill"), folder.file("b.keyrill"));
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"b.keyrill"}, .changed = {"a.keyrill"}}));
    fs::remove(folder.file("a.keyrill"));
    EXPECT_EQ(next(), (FolderChanges{.gone = {"a.keyrill"}, .changed = {"b.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, theFolderComesLater) {
    fs::remove(folder.path());
    const std::string path = folder.file("not/yet/there");
    follow(path);
    EXPECT_EQ(next(), FolderChanges{});
    fs::create_directories(folder.elsewhere("yet/there"));
    std::ofstream(folder.elsewhere("yet/there/a.keyrill")) << "a";
    fs::create_directories(folder.file("not"));
    fs::rename(folder.elsewhere("yet"), folder.file("not/yet"));
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, theFolderGoesAndComesAgain) {
    folder.writes("a.keyrill", "a");
    begin();
    fs::rename(folder.path(), folder.elsewhere("macros"));
    EXPECT_EQ(next(), (FolderChanges{.gone = {"a.keyrill"}}));
    std::ofstream(folder.elsewhere("macros/b.keyrill")) << "b";
    fs::rename(folder.elsewhere("macros"), folder.path());
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill", "b.keyrill"}}));
    folder.writes("c.keyrill", "c");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"c.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, anotherFolderTakesItsPlace) {
    folder.writes("group/a.keyrill", "a");
    begin();
    folder.removes("group");
    EXPECT_EQ(next(), (FolderChanges{.gone = {"group/a.keyrill"}}));
    folder.writes("group/b.keyrill", "b");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"group/b.keyrill"}}));
    folder.writes("group/b.keyrill", "another text");
    EXPECT_EQ(next(), (FolderChanges{.changed = {"group/b.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, theFolderMayBeALink) {
    std::ofstream(folder.elsewhere("a.keyrill")) << "a";
    fs::create_directory_symlink(folder.elsewhere(""), folder.file("link"));
    follow(folder.file("link"));
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill"}}));
    fs::remove(folder.elsewhere("a.keyrill"));
    EXPECT_EQ(next(), (FolderChanges{.gone = {"a.keyrill"}}));
}

TEST_F(LocalFolderFollowerTest, aFileInTheFoldersPlaceIsNoFolder) {
    folder.writes("file", "a file");
    fs::permissions(folder.file("file"), fs::perms::all);
    follow(folder.file("file"));
    EXPECT_EQ(next(), FolderChanges{});
}

TEST_F(LocalFolderFollowerTest, foldersDeeperThanSixteenAreNotEntered) {
    std::string path;
    for (int depth = 1; depth <= 17; ++depth) {
        path += "d/";
        folder.writes(path + "a.keyrill", "a");
    }
    const FolderChanges changes = begin();
    ASSERT_EQ(changes.appeared.size(), 16U);
    EXPECT_EQ(std::count(changes.appeared.back().begin(), changes.appeared.back().end(), '/'), 16);
}

TEST_F(LocalFolderFollowerTest, aBurstIsToldWhole) {
    begin();
    Paths expected;
    constexpr int many = 3000;
    for (int number = 0; number < many; ++number) {
        const std::string name =
            "group" + std::to_string(number % 7) + "/" + std::to_string(number) + ".keyrill";
        folder.writes(name, "text");
        expected.push_back(name);
    }
    std::sort(expected.begin(), expected.end());
    std::set<std::string> known;
    while (known.size() < expected.size()) {
        const FolderChanges changes = next();
        known.insert(changes.appeared.begin(), changes.appeared.end());
        EXPECT_EQ(changes.gone, Paths{});
    }
    EXPECT_EQ(Paths(known.begin(), known.end()), expected);
}

TEST_F(LocalFolderFollowerTest, moreEventsThanTheSystemKeepsAreNoLoss) {
    folder.writes("group/a.keyrill", "a");
    begin();
    std::ifstream limit("/proc/sys/fs/inotify/max_queued_events");
    int most = 0;
    ASSERT_TRUE(limit >> most);
    // Nobody reads while one folder is renamed again and again.
    for (int time = 0; time <= most; ++time) {
        fs::rename(folder.file("group"), folder.file("other"));
        fs::rename(folder.file("other"), folder.file("group"));
    }
    std::ofstream(folder.file("group/z.keyrill")) << "z";
    // Whoever looks in the midst of it may see nothing there for a moment, and must see it again.
    const std::set<std::string> both{"group/a.keyrill", "group/z.keyrill"};
    std::set<std::string> known{"group/a.keyrill"};
    while (known != both && !HasFatalFailure()) {
        const FolderChanges changes = next();
        for (const std::string& path : changes.gone) known.erase(path);
        known.insert(changes.appeared.begin(), changes.appeared.end());
        for (const FolderChanges::Rename& rename : changes.renamed) {
            known.erase(rename.from);
            known.insert(rename.to);
        }
    }
    EXPECT_EQ(known, both);
}

TEST_F(LocalFolderFollowerTest, whatIsWrittenAsEditorsDoHasChangedContents) {
    folder.writes("a.keyrill", "a");
    begin();
    // The old file becomes the backup, and the new one is written in its place.
    fs::rename(folder.file("a.keyrill"), folder.file("a.keyrill~"));
    std::ofstream(folder.file("a.keyrill")) << "b";
    fs::remove(folder.file("a.keyrill~"));
    FolderChanges changes = next();
    // A machine that stands still in between may see that nothing is there for a moment.
    while (changes.gone == Paths{"a.keyrill"}) changes = next();
    const bool isBack = changes.changed == Paths{"a.keyrill"} || changes.appeared == Paths{"a.keyrill"};
    EXPECT_TRUE(isBack);
}

/// What an ordinary user may not read root may: a process that is somebody else follows the folder.
TEST_F(LocalFolderFollowerTest, aFolderThatMayNotBeReadIsAFaultUntilItMay) {
    constexpr uid_t nobody = 65534;
    folder.writes("a.keyrill", "a");
    folder.writes("group/b.keyrill", "b");
    fs::permissions(fs::path(folder.path()).parent_path(), fs::perms::all);
    fs::permissions(folder.file("group"), fs::perms::none);
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setuid(nobody) != 0) _exit(2);
        const std::vector<Error> faults{
            {"The folder " + folder.file("group") + " cannot be read: Permission denied",
             "Check who may read it."}};
        EXPECT_EQ(begin(), (FolderChanges{.appeared = {"a.keyrill"}, .faults = faults}));
        EXPECT_EQ(write(pipe[1], "!", 1), 1);
        EXPECT_EQ(next(), (FolderChanges{.appeared = {"group/b.keyrill"}}));
        _exit(HasFailure() ? 1 : 0);
    }
    close(pipe[1]);
    char sign = 0;
    EXPECT_EQ(read(pipe[0], &sign, 1), 1);
    close(pipe[0]);
    fs::permissions(folder.file("group"), fs::perms::all);
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

}  // namespace
