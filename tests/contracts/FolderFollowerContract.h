// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/FolderFollower.h"

/// A folder that is there, and somebody who works in it. Each act is one that is done at once.
class FolderFollowerWorld {
  public:
    virtual ~FolderFollowerWorld() = default;

    virtual FolderFollower& follower() = 0;
    /// Absolute.
    virtual std::string folder() const = 0;

    virtual void writes(const std::string& path, const std::string& text) = 0;
    virtual void replaces(const std::string& path, const std::string& text) = 0;
    virtual void renames(const std::string& from, const std::string& to) = 0;
    virtual void removes(const std::string& path) = 0;
    /// Waits until something is told.
    virtual void awaitNews() = 0;
};

using MakeFolderFollowerWorld = std::function<std::unique_ptr<FolderFollowerWorld>()>;

/// What every FolderFollower does.
class FolderFollowerContract : public testing::TestWithParam<MakeFolderFollowerWorld> {
  protected:
    using Paths = std::vector<std::string>;
    using Renames = std::vector<FolderChanges::Rename>;

    void follow() {
        world->follower().follow(world->folder(), ".keyrill",
                                 [this](const FolderChanges& changes) { m_told.push_back(changes); });
    }

    /// What is told next.
    FolderChanges next() {
        m_told.clear();
        world->awaitNews();
        return m_told.empty() ? FolderChanges{} : m_told.front();
    }
    const std::vector<FolderChanges>& told() const { return m_told; }

    std::unique_ptr<FolderFollowerWorld> world = GetParam()();

  private:
    std::vector<FolderChanges> m_told;
};

TEST_P(FolderFollowerContract, tellsFirstOfAllThatIsThereAndNotWithinTheCall) {
    world->writes("b.keyrill", "b");
    world->writes("a.keyrill", "a");
    follow();
    EXPECT_EQ(told().size(), 0U);
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill", "b.keyrill"}}));
}

TEST_P(FolderFollowerContract, tellsThatThereIsNothing) {
    follow();
    world->awaitNews();
    ASSERT_EQ(told().size(), 1U);
    EXPECT_EQ(told().front(), FolderChanges{});
}

TEST_P(FolderFollowerContract, tellsOfTheFilesOfItsKindAlone) {
    world->writes("A.KEYRILL", "in capitals");
    world->writes("a.keyrill", "another one");
    world->writes("b.txt", "a text");
    world->writes("keyrill", "no ending");
    world->writes(".keyrill", "nothing but the ending");
    world->writes(".hidden.keyrill", "hidden");
    world->writes(".folder/a.keyrill", "hidden by its folder");
    world->writes("a.keyrill~", "what editors leave");
    follow();
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"A.KEYRILL", "a.keyrill"}}));
}

TEST_P(FolderFollowerContract, tellsOfSubFolders) {
    world->writes("group/a.keyrill", "a");
    world->writes("group.keyrill/deep/er/b.keyrill", "b");
    follow();
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"group.keyrill/deep/er/b.keyrill", "group/a.keyrill"}}));
    world->writes("group/c.keyrill", "c");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"group/c.keyrill"}}));
}

TEST_P(FolderFollowerContract, tellsWhenAFileComesChangesAndGoes) {
    follow();
    next();
    world->writes("a.keyrill", "a");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill"}}));
    world->writes("a.keyrill", "another text");
    EXPECT_EQ(next(), (FolderChanges{.changed = {"a.keyrill"}}));
    world->removes("a.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.gone = {"a.keyrill"}}));
}

TEST_P(FolderFollowerContract, aFileInThePlaceOfAnotherHasAnotherContent) {
    world->writes("a.keyrill", "a");
    follow();
    next();
    world->replaces("a.keyrill", "b");
    EXPECT_EQ(next(), (FolderChanges{.changed = {"a.keyrill"}}));
}

TEST_P(FolderFollowerContract, aFileIsKnownUnderItsNewName) {
    world->writes("a.keyrill", "a");
    world->writes("group/b.keyrill", "b");
    follow();
    next();
    world->renames("a.keyrill", "c.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.renamed = {{"a.keyrill", "c.keyrill"}}}));
    world->renames("c.keyrill", "group/c.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.renamed = {{"c.keyrill", "group/c.keyrill"}}}));
}

TEST_P(FolderFollowerContract, aFileThatTakesTheNameOfAnotherIsARenamedOne) {
    world->writes("a.keyrill", "a");
    world->writes("b.keyrill", "b");
    follow();
    next();
    world->renames("a.keyrill", "b.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.renamed = {{"a.keyrill", "b.keyrill"}}}));
}

TEST_P(FolderFollowerContract, aFileOfAnotherKindThatBecomesOneOfThisAppears) {
    world->writes("a.txt", "a");
    follow();
    next();
    world->renames("a.txt", "a.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"a.keyrill"}}));
    world->renames("a.keyrill", ".a.keyrill");
    EXPECT_EQ(next(), (FolderChanges{.gone = {"a.keyrill"}}));
}

TEST_P(FolderFollowerContract, aFolderIsRenamedWithAllThatItHas) {
    world->writes("group/a.keyrill", "a");
    world->writes("group/deep/b.keyrill", "b");
    follow();
    next();
    world->renames("group", "other");
    EXPECT_EQ(next(), (FolderChanges{.renamed = {{"group/a.keyrill", "other/a.keyrill"},
                                                 {"group/deep/b.keyrill", "other/deep/b.keyrill"}}}));
    world->writes("other/deep/c.keyrill", "c");
    EXPECT_EQ(next(), (FolderChanges{.appeared = {"other/deep/c.keyrill"}}));
    world->removes("other");
    EXPECT_EQ(next(),
              (FolderChanges{.gone = {"other/a.keyrill", "other/deep/b.keyrill", "other/deep/c.keyrill"}}));
}

TEST_P(FolderFollowerContract, namesAreBytes) {
    const std::string odd = "\xE2\x80\xAE \xF0\x9F\x98\x80 \xFF\n%[x].keyrill";
    const std::string longest = std::string(247, 'n') + ".keyrill";
    world->writes(odd, "odd");
    world->writes(longest, "long");
    follow();
    EXPECT_EQ(next(), (FolderChanges{.appeared = {longest, odd}}));
}

TEST_P(FolderFollowerContract, anotherFolderTakesThePlaceOfTheFirst) {
    world->writes("group/a.keyrill", "a");
    follow();
    next();
    world->follower().follow(world->folder() + "/group", ".keyrill", [](const FolderChanges& changes) {
        EXPECT_EQ(changes, (FolderChanges{.appeared = {"a.keyrill"}}));
    });
    EXPECT_EQ(next(), FolderChanges{});
}
