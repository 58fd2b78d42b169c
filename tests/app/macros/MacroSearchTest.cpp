// SPDX-License-Identifier: MIT
#include "app/macros/MacroSearch.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t all = 1U << 30U;

/// Greeting, work/Mail, Übung.
class MacroSearchTest : public testing::Test {
  protected:
    MacroSearchTest() {
        search.setItems({{"Greeting", QStringLiteral("Greeting"), {}},
                         {"work/Mail", QStringLiteral("Mail"), QStringLiteral("work")},
                         {"U", QString::fromUtf8("Übung"), {}}});
        search.setContent("Greeting", "Dear Ann");
        search.setContent("work/Mail", "Kind regards");
    }
    std::string found(const char* query) {
        search.setQuery(QString::fromUtf8(query));
        search.searchOn(all);
        return now();
    }
    std::string now() const {
        std::string indices;
        for (std::size_t index = 0; index < 3; ++index) {
            if (search.isFound(index)) indices += std::to_string(index);
        }
        return indices;
    }
    MacroSearch search;
};

TEST_F(MacroSearchTest, anEmptyQueryFindsAll) {
    EXPECT_EQ(found(""), "012");
    EXPECT_EQ(found("   "), "012");
}

TEST_F(MacroSearchTest, findsNamesGroupsAndContentsInAnyCase) {
    EXPECT_EQ(found("MAIL"), "1");
    EXPECT_EQ(found("work"), "1");
    EXPECT_EQ(found("ann"), "0");
    EXPECT_EQ(found("REGARDS"), "1");
    EXPECT_EQ(found("übung"), "2");
    EXPECT_EQ(found("nothing"), "");
}

TEST_F(MacroSearchTest, aQueryThatGoesOnOrBackFindsTheSameAsAtOnce) {
    EXPECT_EQ(found("a"), "01");
    EXPECT_EQ(found("ar"), "01");
    EXPECT_EQ(found("ard"), "1");
    EXPECT_EQ(found("ar"), "01");
    EXPECT_EQ(found("g"), "012");
}

TEST_F(MacroSearchTest, namesAreFoundAtOnceAndContentsBitByBit) {
    search.setQuery(QStringLiteral("a"));
    EXPECT_EQ(now(), "1");
    EXPECT_TRUE(search.searchOn(1));
    EXPECT_EQ(now(), "01");
    while (!search.isDone()) search.searchOn(1);
    EXPECT_EQ(now(), "01");
}

TEST_F(MacroSearchTest, aContentThatIsReadLaterOrAnewIsFound) {
    EXPECT_EQ(found("late"), "");
    EXPECT_TRUE(search.isDone());
    search.setContent("U", "read later");
    EXPECT_TRUE(search.searchOn(all));
    EXPECT_EQ(now(), "2");
    search.setContent("U", "something else");
    search.searchOn(all);
    EXPECT_EQ(now(), "");
}

TEST_F(MacroSearchTest, contentsStayWithTheirMacrosWhenTheListIsAnother) {
    search.setItems({{"Greeting", QStringLiteral("Greeting"), {}}});
    EXPECT_TRUE(search.hasContent("Greeting"));
    EXPECT_FALSE(search.hasContent("work/Mail"));
    search.setQuery(QStringLiteral("ann"));
    search.searchOn(all);
    EXPECT_TRUE(search.isFound(0));
}

}  // namespace
