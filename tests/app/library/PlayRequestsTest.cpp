// SPDX-License-Identifier: MIT
#include "app/library/PlayRequests.h"

#include "library/LibraryTest.h"
#include "platform/ScriptingService.h"

namespace {

using Cause = Refusal::Cause;

class PlayRequestsTest : public LibraryTest {
  protected:
    FakeScriptingService& scripting() { return platform().scripting; }
    void openWith(std::initializer_list<const char*> paths) {
        for (const char* path : paths) folder().userWrites(path, "beep");
        open();
    }

    PlayRequests requests{library, platform().macroFiles, platform().scripting};
};

const ScriptFailure fault{.line = 3, .error = {"Expected a number but found blue.", "Write a number."}};

TEST_F(PlayRequestsTest, theCurrentMacroIsPlayedOnceUnlessWishedOtherwise) {
    state().currentMacro = macroWithScript("mine");
    const auto made = requests.ofCurrent({});
    EXPECT_EQ(made.value().script, "mine");
    EXPECT_EQ(made.value().options, PlayOptions{});
    EXPECT_EQ(requests.ofCurrent({.times = PlayTimes{3}, .speed = 2}).value().options,
              (PlayOptions{.times = {3}, .speed = 2}));
}

TEST_F(PlayRequestsTest, withoutACurrentMacroNothingCanBePlayedNow) {
    EXPECT_EQ(requests.ofCurrent({}).error(),
              (Refusal{Cause::notNow, {"There is no macro to play yet.", ""}}));
}

TEST_F(PlayRequestsTest, aMacroHasItsOwnTimesAndSpeedUnlessWishedOtherwise) {
    records().put("a.keyrill", {{"times", "2"}, {"speed", "0.5"}});
    openWith({"a.keyrill"});
    EXPECT_EQ(requests.ofMacro("a", {}).value().script, "beep");
    EXPECT_EQ(requests.ofMacro("a", {}).value().options, (PlayOptions{.times = {2}, .speed = 0.5}));
    EXPECT_EQ(requests.ofMacro("a", {.speed = 4}).value().options, (PlayOptions{.times = {2}, .speed = 4}));
    EXPECT_EQ(requests.ofMacro("a", {.times = PlayTimes::untilStopped()}).value().options,
              (PlayOptions{.times = PlayTimes::untilStopped(), .speed = 0.5}));
}

TEST_F(PlayRequestsTest, whenAMacroBeginsThatIsNoted) {
    openWith({"a.keyrill"});
    const PlayRequest request = requests.ofMacro("a", {}).value();
    EXPECT_EQ(library.settings("a.keyrill").lastPlayed, std::nullopt);
    request.begins();
    EXPECT_TRUE(library.settings("a.keyrill").lastPlayed.has_value());
}

TEST_F(PlayRequestsTest, aNameThatThereIsNotBringsTheNearest) {
    openWith({"Greeting.keyrill", "mail/Greetings.keyrill"});
    EXPECT_EQ(
        requests.ofMacro("greting", {}).error(),
        (Refusal{Cause::noSuchMacro,
                 {R"(There is no macro called "greting".)", R"(Similar: "Greeting", "mail/Greetings".)"}}));
    EXPECT_EQ(
        requests.ofMacro("xyz", {}).error(),
        (Refusal{Cause::noSuchMacro, {R"(There is no macro called "xyz".)", "keyrill --list lists all."}}));
}

TEST_F(PlayRequestsTest, aNameOfSeveralIsNotEnough) {
    openWith({"mail/Hello.keyrill", "work/Hello.keyrill"});
    EXPECT_EQ(requests.ofMacro("Hello", {}).error(),
              (Refusal{Cause::severalMacros,
                       {R"(There are several macros called "Hello".)",
                        R"(Say which one: "mail/Hello", "work/Hello".)"}}));
}

TEST_F(PlayRequestsTest, aMacroThatDoesNotCompileIsRefusedWithoutAWordOfIt) {
    openWith({"a.keyrill"});
    scripting().refuse("beep", fault);
    EXPECT_EQ(requests.ofMacro("a", {}).error(),
              (Refusal{Cause::notPlayable,
                       {R"("a" cannot be played: its script is wrong in line 3.)",
                        "keyrill-script check \"" + library.fileOf("a.keyrill") + "\" tells more."}}));
    state().currentMacro = macroWithScript("beep");
    EXPECT_EQ(requests.ofCurrent({}).error(),
              (Refusal{Cause::notPlayable,
                       {"What Play plays cannot be played: its script is wrong in line 3.",
                        "Play in the menu tells more."}}));
}

TEST_F(PlayRequestsTest, aFileIsPlayedOnceUnlessWishedOtherwise) {
    records().put("a.keyrill", {{"times", "2"}});
    openWith({"a.keyrill"});
    const std::string file = library.fileOf("a.keyrill");
    EXPECT_EQ(requests.ofFile(file, {}).value().script, "beep");
    EXPECT_EQ(requests.ofFile(file, {}).value().options, PlayOptions{});
    EXPECT_EQ(requests.ofFile(file, {.times = PlayTimes{5}}).value().options, PlayOptions{.times = {5}});
}

TEST_F(PlayRequestsTest, whatCannotBeReadIsRefused) {
    openWith({"a.keyrill"});
    const Error denied{"The file a cannot be read: Permission denied", "Check who may read it."};
    platform().macroFiles.failNextCall(denied);
    EXPECT_EQ(requests.ofMacro("a", {}).error(), (Refusal{Cause::notPlayable, denied}));
    platform().macroFiles.failNextCall(denied);
    EXPECT_EQ(requests.ofFile("/a", {}).error(), (Refusal{Cause::notPlayable, denied}));
}

}  // namespace
