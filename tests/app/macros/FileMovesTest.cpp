// SPDX-License-Identifier: MIT
#include "app/macros/FileMoves.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace {

/// A folder with Greeting.keyrill, and a trash of its own.
class FileMovesTest : public testing::Test {
  public:
    ~FileMovesTest() override {
        if (m_dataHome.isNull()) {
            qunsetenv("XDG_DATA_HOME");
        } else {
            qputenv("XDG_DATA_HOME", m_dataHome);
        }
    }

  protected:
    FileMovesTest() : m_dataHome(qgetenv("XDG_DATA_HOME")) {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(m_folder.file("data")));
        std::filesystem::create_directories(m_folder.file("data"));
        std::ofstream(greeting) << "text \xff\r\n";
    }
    bool isThere(const std::string& path) const { return std::filesystem::exists(path); }
    std::string file(const std::string& name) const { return m_folder.file(name); }

  private:
    TemporaryFolder m_folder;
    QByteArray m_dataHome;

  protected:
    const std::string greeting = m_folder.file("Greeting.keyrill");
};

TEST_F(FileMovesTest, aNameBecomesThatOfAFile) {
    EXPECT_EQ(FileMoves::named("/m/One.keyrill", QStringLiteral(" Two ")).value(), "/m/Two.keyrill");
    EXPECT_EQ(FileMoves::named("/m/One.keyrill", QString::fromUtf8("שלום 😀")).value(), "/m/שלום 😀.keyrill");
    EXPECT_EQ(FileMoves::named("/m/a.b.keyrill", QStringLiteral("c.d")).value(), "/m/c.d.keyrill");
    EXPECT_EQ(FileMoves::named("/m/One.keyrill", QStringLiteral("Two.keyrill")).value(), "/m/Two.keyrill");
    EXPECT_EQ(FileMoves::named("/m/One.keyrill", QStringLiteral(".keyrill")).error().message,
              "A macro needs a name.");
}

TEST_F(FileMovesTest, aNameThatNoFileCanHaveIsRefusedWithItsReason) {
    const auto reason = [](const QString& name) {
        return FileMoves::named("/m/One.keyrill", name).error().message;
    };
    EXPECT_EQ(reason(QStringLiteral(" ")), "A macro needs a name.");
    EXPECT_EQ(reason(QStringLiteral("a/b")), "A name cannot have a slash (/) in it.");
    EXPECT_EQ(reason(QStringLiteral(".a")), "A name cannot begin with a point: the file would be hidden.");
    EXPECT_EQ(reason(QString(300, u'a')), "The name is too long for a file.");
    EXPECT_EQ(reason(QString(130, u'ä')), "The name is too long for a file.");
}

TEST_F(FileMovesTest, renamesAndOverwritesNothing) {
    ASSERT_TRUE(FileMoves::rename(greeting, file("Other.keyrill")));
    EXPECT_FALSE(isThere(greeting));
    std::ofstream(greeting) << "another";
    EXPECT_EQ(FileMoves::rename(greeting, file("Other.keyrill")).error().message,
              "There is already a macro called \"Other\".");
    EXPECT_EQ(contentOf(greeting), "another");
    EXPECT_EQ(contentOf(file("Other.keyrill")), "text \xff\r\n");
    ASSERT_TRUE(FileMoves::rename(greeting, file("greeting.keyrill"))) << "the case alone";
    EXPECT_FALSE(FileMoves::rename(file("nothing"), file("new")));
}

TEST_F(FileMovesTest, copiesEachByteForTheUserAlone) {
    const std::string copy = FileMoves::freeName(greeting);
    EXPECT_EQ(copy, file("Greeting 2.keyrill"));
    ASSERT_TRUE(FileMoves::copy(greeting, copy));
    EXPECT_EQ(contentOf(copy), "text \xff\r\n");
    struct stat state {};
    ASSERT_EQ(stat(copy.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0600U);
    EXPECT_EQ(FileMoves::freeName(greeting), file("Greeting 3.keyrill"));
    EXPECT_FALSE(FileMoves::copy(greeting, copy)) << "it is there";
}

TEST_F(FileMovesTest, whatIsInTheTrashComesBackAndLeavesNothingThere) {
    const auto trashed = FileMoves::trash(greeting);
    ASSERT_TRUE(trashed) << trashed.error().message;
    EXPECT_FALSE(isThere(greeting));
    EXPECT_EQ(contentOf(trashed.value().in), "text \xff\r\n");
    const std::string note = file("data/Trash/info/Greeting.keyrill.trashinfo");
    EXPECT_TRUE(isThere(note));
    ASSERT_TRUE(FileMoves::restore(trashed.value()));
    EXPECT_EQ(contentOf(greeting), "text \xff\r\n");
    EXPECT_FALSE(isThere(note));
    EXPECT_FALSE(FileMoves::restore(trashed.value()));
}

TEST_F(FileMovesTest, whatComesBackOverwritesNothing) {
    const auto trashed = FileMoves::trash(greeting);
    ASSERT_TRUE(trashed);
    std::ofstream(greeting) << "new";
    EXPECT_FALSE(FileMoves::restore(trashed.value()));
    EXPECT_EQ(contentOf(greeting), "new");
}

}  // namespace
