// SPDX-License-Identifier: MIT
#include "app/library/LibraryController.h"

#include "app/RunLoop.h"
#include "engine/EngineTest.h"
#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

class LibraryControllerTest : public EngineTest {
  protected:
    LibraryControllerTest() { installKeyRecorder(); }

    FakeFolderFollower& folder() { return platform().folderFollower; }
    FakeRecordStore& records() { return platform().macroRecords; }

    void start() {
        controller.start();
        folder().deliver();
    }
    void userStrikesHotKey() {
        for (const std::uint32_t held : {key::control, key::super}) platform().keyboard.userPresses(held);
        platform().keyboard.userPresses(key::one);
        platform().keyboard.userReleases(key::one);
    }
    void userLetsModifiersGo() {
        for (const std::uint32_t held : {key::super, key::control}) platform().keyboard.userReleases(held);
    }
    static Record hotKey() { return {{"hotKeyCode", "18"}, {"hotKeyFlags", "1310720"}}; }

    LibraryController controller{{.folderFollower = platform().folderFollower,
                                  .macroRecords = platform().macroRecords,
                                  .recordings = platform().recordings,
                                  .macroFiles = platform().macroFiles,
                                  .hotKeys = platform().hotKeys,
                                  .firstHotKey = 1000,
                                  .notifications = platform().notifications,
                                  .scripting = platform().scripting,
                                  .draftFolder = {}}};
};

TEST_F(LibraryControllerTest, playsAMacroOnceAllModifiersAreUp) {
    folder().userWrites("a.keyrill", "beep");
    records().put("a.keyrill", hotKey());
    start();
    userStrikesHotKey();
    EXPECT_EQ(runs().size(), 0U);
    userLetsModifiersGo();
    EXPECT_EQ(runs(), std::vector<std::string>{"beep"});
}

TEST_F(LibraryControllerTest, playsItAsItsSettingsSay) {
    folder().userWrites("a.keyrill", "beep");
    Record record = hotKey();
    record["times"] = "3";
    record["speed"] = "0.5";
    records().put("a.keyrill", record);
    start();
    userStrikesHotKey();
    userLetsModifiersGo();
    EXPECT_EQ(runs(), (std::vector<std::string>{"beep", "beep", "beep"}));
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{0.5, 0.5, 0.5}));
}

TEST_F(LibraryControllerTest, playsWhatTheFileSaysNow) {
    folder().userWrites("a.keyrill", "old");
    records().put("a.keyrill", hotKey());
    start();
    folder().userWrites("a.keyrill", "new");
    userStrikesHotKey();
    userLetsModifiersGo();
    EXPECT_EQ(runs(), std::vector<std::string>{"new"});
}

TEST_F(LibraryControllerTest, leavesTheCurrentMacroAsItIs) {
    state().currentMacro = macroWithScript("mine");
    folder().userWrites("a.keyrill", "beep");
    records().put("a.keyrill", hotKey());
    start();
    userStrikesHotKey();
    userLetsModifiersGo();
    EXPECT_EQ(state().currentMacro->script(), "mine");
}

TEST_F(LibraryControllerTest, notesWhenAMacroWasPlayed) {
    folder().userWrites("a.keyrill", "beep");
    records().put("a.keyrill", hotKey());
    start();
    const auto before = std::chrono::system_clock::now();
    userStrikesHotKey();
    EXPECT_EQ(controller.library().settings("a.keyrill").lastPlayed, std::nullopt);
    userLetsModifiersGo();
    const auto played = controller.library().settings("a.keyrill").lastPlayed;
    ASSERT_TRUE(played.has_value());
    EXPECT_GE(*played, std::chrono::floor<std::chrono::seconds>(before));
    EXPECT_LE(*played, std::chrono::system_clock::now());
}

TEST_F(LibraryControllerTest, tellsWhyAMacroCannotBeRead) {
    folder().userWrites("a.keyrill", "beep");
    records().put("a.keyrill", hotKey());
    start();
    folder().userRemoves("a.keyrill");
    userStrikesHotKey();
    userLetsModifiersGo();
    EXPECT_EQ(runs().size(), 0U);
    EXPECT_EQ(
        platform().journal.of({"post"}),
        Journal::Lines{
            "post(\"\"a\" was not played\", \"The file /home/user/.local/share/keyrill/a.keyrill cannot "
            "be read: No such file or directory\nCheck that the file is there and who may read "
            "it.\")"});
}

TEST_F(LibraryControllerTest, tellsOfDamagedSettings) {
    records().addFault({"The macro settings file x is not a key file.", "It was renamed."});
    start();
    EXPECT_EQ(
        platform().journal.of({"post"}),
        Journal::Lines{"post(\"Hot keys of macros\", \"The macro settings file x is not a key file.\nIt was "
                       "renamed.\")"});
}

TEST_F(LibraryControllerTest, passesOnWhatNobodyShows) {
    platform().notifications.losePresenter();
    QString unshown;
    QObject::connect(&controller, &LibraryController::faultUnshown,
                     [&](const QString& fault) { unshown = fault; });
    controller.history().setKept(true);
    platform().recordings.failNextCall({"The disk is full.", "Make room."});
    controller.history().add(*macroWithScript("beep"));
    EXPECT_EQ(unshown, "The history. The disk is full.\nMake room.");
}

/// It is written when the turn of the loop has ended.
TEST_F(LibraryControllerTest, tellsThatSettingsCouldNotBeWritten) {
    folder().userWrites("a.keyrill", "beep");
    start();
    records().failNextCall({"The disk is full.", "Make room."});
    controller.library().setSettings("a.keyrill", {.play = {.times = {3}}});
    records().endTurn();
    const std::vector<FakeNotifications::Message> expected{
        {"Hot keys of macros", "The disk is full.\nMake room."}};
    EXPECT_TRUE(comesTrue([&] { return platform().notifications.messages() == expected; }));
}

TEST_F(LibraryControllerTest, tellsWhyARecordingCannotBeKept) {
    controller.history().setKept(true);
    platform().recordings.failNextCall({"The disk is full.", "Make room."});
    controller.history().add(*macroWithScript("beep"));
    const std::vector<FakeNotifications::Message> expected{{"The history", "The disk is full.\nMake room."}};
    EXPECT_EQ(platform().notifications.messages(), expected);
}

TEST_F(LibraryControllerTest, tellsOnceThatTheMacrosAreKnown) {
    int times = 0;
    QObject::connect(&controller, &LibraryController::read, [&times] { ++times; });
    folder().userWrites("a.keyrill", "beep");
    controller.start();
    EXPECT_EQ(times, 0);
    folder().deliver();
    folder().userWrites("b.keyrill", "beep");
    folder().deliver();
    EXPECT_EQ(times, 1);
}

TEST_F(LibraryControllerTest, tellsWhoseHotKeyHasChanged) {
    std::vector<std::string> changes;
    QObject::connect(&controller, &LibraryController::hotKeyChanged,
                     [&changes](const QByteArray& path) { changes.push_back(path.toStdString()); });
    folder().userWrites("a.keyrill", "beep");
    records().put("a.keyrill", hotKey());
    start();
    EXPECT_EQ(changes, std::vector<std::string>{"a.keyrill"});
}

TEST_F(LibraryControllerTest, openingAFileRegistersNoHotKey) {
    folder().userWrites("a.keyrill", "hotKeyCode=18\nhotKeyFlags=1310720\nbeep");
    start();
    EXPECT_EQ(controller.library().text("a.keyrill").value(), "hotKeyCode=18\nhotKeyFlags=1310720\nbeep");
    userStrikesHotKey();
    userLetsModifiersGo();
    EXPECT_EQ(runs().size(), 0U);
}

}  // namespace
