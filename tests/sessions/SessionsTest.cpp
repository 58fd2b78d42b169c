// SPDX-License-Identifier: MIT
#include "platform/sessions/Sessions.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

Result<void> isHere() { return {}; }
Result<void> isNotHere() { return Error{"The display cannot be reached.", "Log in."}; }

Result<void> isElsewhere() { return Error{"The session is another user's.", ""}; }

constexpr SessionKind near{
    .name = "near", .toolkit = "one", .check = isHere, .examine = nullptr, .open = nullptr};
constexpr SessionKind other{
    .name = "other", .toolkit = "two", .check = isHere, .examine = nullptr, .open = nullptr};
constexpr SessionKind far{
    .name = "far", .toolkit = "three", .check = isNotHere, .examine = nullptr, .open = nullptr};
constexpr SessionKind farther{
    .name = "farther", .toolkit = "four", .check = isElsewhere, .examine = nullptr, .open = nullptr};

TEST(SessionsTest, theFirstThatTheProcessWasStartedInIsTaken) {
    const std::array kinds{far, near, other};
    EXPECT_EQ(chooseSession("", kinds).value().name, "near");
}

TEST(SessionsTest, aNameOverrulesTheOrder) {
    const std::array kinds{near, other};
    EXPECT_EQ(chooseSession("other", kinds).value().name, "other");
}

TEST(SessionsTest, aNamedOneThatIsNotHereSaysWhatIsMissing) {
    const std::array kinds{near, far};
    EXPECT_EQ(chooseSession("far", kinds).error(), (Error{"The display cannot be reached.", "Log in."}));
}

TEST(SessionsTest, withoutAnySessionTheLastOneSaysWhatIsMissing) {
    const std::array kinds{farther, far};
    EXPECT_EQ(chooseSession("", kinds).error(), (Error{"The display cannot be reached.", "Log in."}));
}

TEST(SessionsTest, whereNoneIsKnownThereIsNone) {
    EXPECT_EQ(chooseSession("", {}).error(), (Error{"No kind of session is known.", ""}));
}

TEST(SessionsTest, anUnknownNameListsTheKnownOnes) {
    const std::array kinds{near, far};
    EXPECT_EQ(chooseSession("farr", kinds).error(),
              (Error{R"(There is no kind of session called "farr".)", "Choose one of these: near, far."}));
}

TEST(SessionsTest, eachKindHasANameOfItsOwnAndAWayIn) {
    std::set<std::string_view> names;
    for (const SessionKind& kind : sessionKinds()) {
        EXPECT_TRUE(names.insert(kind.name).second) << kind.name;
        EXPECT_NE(kind.toolkit, nullptr) << kind.name;
        EXPECT_NE(kind.check, nullptr) << kind.name;
        EXPECT_NE(kind.examine, nullptr) << kind.name;
        EXPECT_NE(kind.open, nullptr) << kind.name;
    }
    EXPECT_TRUE(names.contains("x11"));
    EXPECT_TRUE(names.contains("wayland"));
}

}  // namespace
