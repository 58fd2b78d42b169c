// SPDX-License-Identifier: MIT
#include "platform/linux/WholeFile.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include "linux/LeftOver.h"
#include "platform/Descriptor.h"
#include "platform/linux/FileReplacement.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

class WholeFileTest : public testing::Test {
  protected:
    static mode_t modeOf(const std::string& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
    }
    static ino_t numberOf(const std::string& path) {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
    }
    std::string writeError(const std::string& path) const {
        return WholeFile(path).write("new").error().message;
    }
    std::string readError(const std::string& path) const { return WholeFile(path).read().error().message; }

    TemporaryFolder folder;
    const std::string file = folder.file("file");
};

TEST_F(WholeFileTest, isReadByteForByte) {
    const std::string bytes("a\0\xFF\r\n", 5);
    std::ofstream(file) << bytes;
    EXPECT_EQ(WholeFile(file).read().value(), bytes);
    EXPECT_TRUE(WholeFile(file).write(bytes + bytes));
    EXPECT_EQ(contentOf(file), bytes + bytes);
}

TEST_F(WholeFileTest, newIsForTheUserAlone) {
    EXPECT_TRUE(WholeFile(file).write("new"));
    EXPECT_EQ(modeOf(file), 0600U);
}

TEST_F(WholeFileTest, keepsItsMode) {
    std::ofstream(file) << "old";
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
        fs::permissions(file, static_cast<fs::perms>(mode));
        const mode_t umaskBefore = umask(077);
        EXPECT_TRUE(WholeFile(file).write("new"));
        umask(umaskBefore);
        EXPECT_EQ(modeOf(file), mode);
    }
}

TEST_F(WholeFileTest, getsTheModeThatIsAskedFor) {
    std::ofstream(file) << "old";
    EXPECT_TRUE(WholeFile(file).write("new", 0640));
    EXPECT_EQ(modeOf(file), 0640U);
}

TEST_F(WholeFileTest, isWrittenThroughLinksThatStay) {
    fs::create_directories(folder.file("there"));
    fs::create_symlink("there/middle", folder.file("link"));
    fs::create_symlink(folder.file("there/target"), folder.file("there/middle"));
    for (const std::string text : {"first, when the target is not there", "then over it"}) {
        EXPECT_TRUE(WholeFile(folder.file("link")).write(text));
        EXPECT_TRUE(fs::is_symlink(folder.file("link")));
        EXPECT_TRUE(fs::is_symlink(folder.file("there/middle")));
        EXPECT_FALSE(fs::is_symlink(folder.file("there/target")));
        EXPECT_EQ(contentOf(folder.file("there/target")), text);
    }
}

TEST_F(WholeFileTest, isNotWrittenThroughACircleOfLinks) {
    fs::create_symlink("b", folder.file("a"));
    fs::create_symlink("a", folder.file("b"));
    EXPECT_EQ(readError(folder.file("a")),
              "The file " + folder.file("a") + " cannot be read: Too many levels of symbolic links");
    EXPECT_EQ(writeError(folder.file("a")),
              "The file " + folder.file("a") + " cannot be written: Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(folder.file("a")));
}

TEST_F(WholeFileTest, leavesNothingBesideItself) {
    EXPECT_TRUE(WholeFile(file).write("new"));
    EXPECT_TRUE(WholeFile(file).write("newer"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 1);
}

/// Of writers that were killed half-way.
TEST_F(WholeFileTest, isWrittenWithWhatKilledWritersLeftBesideItRemoved) {
    const std::vector<std::string> leftOvers{makeLeftOver(folder.path()), makeLeftOver(folder.path())};
    EXPECT_TRUE(WholeFile(file).write("new"));
    for (const std::string& name : leftOvers) EXPECT_FALSE(fs::exists(name)) << name;
}

/// However alike it is called: six letters and a file's number, too.
TEST_F(WholeFileTest, isWrittenWithoutTouchingAnyFileOfTheUsers) {
    const std::string unfinished = ".keyrill-unfinished-";
    std::ofstream(file) << "old";
    const std::vector<std::string> others = {"file.BACKUP",
                                             "file.A1B2C3",
                                             unfinished,
                                             unfinished + "BACKUP",
                                             unfinished + "aB3dE6",
                                             unfinished + "123456",
                                             unfinished + std::to_string(numberOf(file)),
                                             ".keyrill-unfinished",
                                             "keyrill-unfinished-aB3dE6"};
    for (const std::string& name : others) std::ofstream(folder.file(name)) << "a user's";
    fs::create_directory(folder.file(unfinished + "folder"));
    fs::create_symlink("file", folder.file(unfinished + "alinkx"));
    EXPECT_TRUE(WholeFile(file).write("new"));
    EXPECT_TRUE(WholeFile(file).write("newer"));
    for (const std::string& name : others) EXPECT_EQ(contentOf(folder.file(name)), "a user's") << name;
    EXPECT_TRUE(fs::is_directory(folder.file(unfinished + "folder")));
    EXPECT_TRUE(fs::is_symlink(folder.file(unfinished + "alinkx")));
}

TEST_F(WholeFileTest, leavesWhatAnotherProcessWritesJustNow) {
    const std::string unfinished = makeLeftOver(folder.path());
    {
        const Descriptor writer(open(unfinished.c_str(), O_WRONLY | O_CLOEXEC));
        ASSERT_EQ(flock(writer.number(), LOCK_EX | LOCK_NB), 0);
        EXPECT_TRUE(WholeFile(file).write("new"));
        EXPECT_TRUE(fs::exists(unfinished));
    }
    EXPECT_TRUE(WholeFile(file).write("newer"));
    EXPECT_FALSE(fs::exists(unfinished));
}

/// The system ends the writer within its second MiB (SIGXFSZ), where nothing is caught or undone.
TEST_F(WholeFileTest, isTheOldOneAndAloneAfterAWriterWasKilledHalfWay) {
    std::ofstream(file) << "old";
    const auto names = [this] { return std::distance(fs::directory_iterator(folder.path()), {}); };
    const pid_t writer = fork();
    if (writer == 0) {
        constexpr rlimit oneMebibyte{1U << 20U, 1U << 20U};
        constexpr rlimit nothing{0, 0};
        setrlimit(RLIMIT_FSIZE, &oneMebibyte);
        setrlimit(RLIMIT_CORE, &nothing);
        signal(SIGXFSZ, SIG_DFL);
        static_cast<void>(WholeFile(file).write(std::string(std::size_t{2} << 20U, 'n')));
        _exit(EXIT_SUCCESS);
    }
    int status = 0;
    ASSERT_EQ(waitpid(writer, &status, 0), writer);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ);
    EXPECT_EQ(contentOf(file), "old");
    EXPECT_EQ(names(), 2);
    EXPECT_TRUE(WholeFile(file).write("new"));
    EXPECT_EQ(contentOf(file), "new");
    EXPECT_EQ(names(), 1);
}

TEST_F(WholeFileTest, tellsThatItIsNotThere) {
    EXPECT_TRUE(WholeFile(file).isAbsent());
    EXPECT_EQ(readError(file), "The file " + file + " cannot be read: No such file or directory");
    EXPECT_EQ(writeError(folder.file("no/file")),
              "The file " + folder.file("no/file") + " cannot be written: No such file or directory");
}

TEST_F(WholeFileTest, refusesAllThatIsNoFile) {
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(readError(folder.path()), "The file " + folder.path() + " cannot be read: It is a folder");
    EXPECT_EQ(writeError(folder.path()), "The file " + folder.path() + " cannot be written: It is a folder");
    EXPECT_EQ(readError(pipe), "The file " + pipe + " cannot be read: It is not a regular file");
    EXPECT_EQ(writeError(pipe), "The file " + pipe + " cannot be written: It is not a regular file");
    EXPECT_EQ(writeError("/dev/null"), "The file /dev/null cannot be written: It is not a regular file");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(WholeFileTest, refusesWhatTheKernelMakesUp) {
    for (const std::string path : {"/proc/self/status", "/proc/self/mem", "/sys/kernel/mm/ksm/run"}) {
        if (path.starts_with("/sys") && !fs::exists(path)) continue;
        EXPECT_EQ(readError(path), "The file " + path + " cannot be read: It is not a regular file");
        EXPECT_EQ(writeError(path), "The file " + path + " cannot be written: It is not a regular file");
    }
}

TEST_F(WholeFileTest, refusesThemBehindLinksToo) {
    const std::string link = folder.file("link");
    for (const std::string path : {"/dev/null", "/dev/zero", "/proc/self/status"}) {
        fs::create_symlink(path, link);
        EXPECT_EQ(readError(link), "The file " + link + " cannot be read: It is not a regular file");
        EXPECT_EQ(writeError(link), "The file " + link + " cannot be written: It is not a regular file");
        EXPECT_TRUE(fs::remove(link));
    }
}

/// The program of an administrator must not take a user's file away from them.
TEST_F(WholeFileTest, keepsItsOwner) {
    if (geteuid() != 0) GTEST_SKIP() << "only root gives files to others";
    std::ofstream(file) << "old";
    ASSERT_EQ(chown(file.c_str(), 1234, 5678), 0);
    EXPECT_TRUE(WholeFile(file).write("new"));
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 5678U);
}

TEST_F(WholeFileTest, keepsItsGroup) {
    if (geteuid() != 0) GTEST_SKIP() << "only root gives files to others";
    std::ofstream(file) << "old";
    ASSERT_EQ(chown(file.c_str(), 0, 5678), 0);
    ASSERT_EQ(chmod(file.c_str(), 0660), 0);
    EXPECT_TRUE(WholeFile(file).write("new"));
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_gid, 5678U);
    EXPECT_EQ(status.st_mode & 07777U, 0660U);
}

/// Only members can give a file to a group; what the group might do, the saver's own group may not.
TEST_F(WholeFileTest, givesNothingToAnotherGroupThanItsOwn) {
    if (geteuid() != 0) GTEST_SKIP() << "only root gives files to others";
    constexpr uid_t user = 1234;
    std::ofstream(file) << "old";
    ASSERT_EQ(chown(folder.path().c_str(), user, user), 0);
    ASSERT_EQ(chown(file.c_str(), user, 5678), 0);
    ASSERT_EQ(chmod(file.c_str(), 0664), 0);
    const pid_t saver = fork();
    if (saver == 0) {
        const bool isUser = setgroups(0, nullptr) == 0 && setgid(user) == 0 && setuid(user) == 0;
        _exit(isUser && WholeFile(file).write("new") ? 0 : 1);
    }
    int ended = 0;
    ASSERT_EQ(waitpid(saver, &ended, 0), saver);
    ASSERT_EQ(ended, 0);
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_gid, user);
    EXPECT_EQ(status.st_mode & 07777U, 0644U);
}

/// A folder in memory, where nothing waits for a disk.
class FolderInMemory {
  public:
    FolderInMemory() {
        setenv("TMPDIR", "/dev/shm", 1);
        m_folder.emplace();
        unsetenv("TMPDIR");
    }

    const TemporaryFolder& folder() const { return *m_folder; }

  private:
    std::optional<TemporaryFolder> m_folder;
};

/// File systems in memory count up, so that the next number is the name of a user's file.
TEST_F(WholeFileTest, isWrittenWhereAUsersFileHasTheNameOfItsNumber) {
    const FolderInMemory memory;
    const std::string name = memory.folder().file("file");
    std::ofstream(name) << "old";
    constexpr ino_t many = 3000;
    const ino_t first = numberOf(name) + many;
    std::vector<std::string> others;
    for (ino_t number = first; number < first + many; ++number) {
        const std::string other = memory.folder().file(".keyrill-unfinished-" + std::to_string(number));
        std::ofstream(other) << "a user's";
        if (numberOf(other) != number) others.push_back(other);
    }
    EXPECT_TRUE(WholeFile(name).write("new"));
    for (const std::string& other : others) ASSERT_EQ(contentOf(other), "a user's") << other;
    EXPECT_TRUE(fs::exists(memory.folder().file(".keyrill-unfinished-" + std::to_string(numberOf(name)))))
        << "no file of the user's had its number";
}

TEST_F(WholeFileTest, isWrittenWhileOthersSweepItsFolder) {
    const FolderInMemory memory;
    const std::string name = memory.folder().file("file");
    std::atomic<bool> isDone = false;
    std::thread sweeper([&] {
        while (!isDone) FileReplacement::sweep(memory.folder().path());
    });
    int failures = 0;
    for (int save = 0; save < 3000; ++save) failures += WholeFile(name).write("content") ? 0 : 1;
    isDone = true;
    sweeper.join();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(contentOf(name), "content");
}

TEST_F(WholeFileTest, refusesTheEndlessAndTheHuge) {
    std::ofstream(file) << "";
    constexpr std::uintmax_t mebibyte = 1024 * 1024;
    // The second is more than fits into 32 bits.
    for (const std::uintmax_t size : {64 * mebibyte + 1, 5 * 1024 * mebibyte}) {
        fs::resize_file(file, size);
        EXPECT_EQ(readError(file), "The file " + file + " cannot be read: It is larger than 64 MiB");
    }
}

TEST_F(WholeFileTest, givesAdviceThatFitsTheCause) {
    const WholeFile inner(folder.file("folder"));
    fs::create_directory(folder.file("folder"));
    EXPECT_EQ(inner.read().error().hint, "Choose a file.");
    EXPECT_EQ(inner.write("new").error().hint, "Choose another name.");
    EXPECT_EQ(WholeFile("/dev/null").read().error().hint, "Choose a file.");
    EXPECT_EQ(WholeFile(file).read().error().hint, "Check that the file is there and who may read it.");
}

TEST_F(WholeFileTest, callsItselfWhatItIs) {
    EXPECT_EQ(WholeFile(file, WholeFile::Kind::settings).read().error().message,
              "The settings file " + file + " cannot be read: No such file or directory");
}

}  // namespace
