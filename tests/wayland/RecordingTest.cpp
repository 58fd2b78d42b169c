// SPDX-License-Identifier: MIT
//
// keyrill records under sway what is typed into native programs: from keyboards that keyrill-access opens,
// and only while they are needed. What is recorded is judged by what playing it types.
#include <fstream>
#include <map>

#include "compositor/Field.h"
#include "wayland/AccessWorld.h"
#include "wayland/SwayProgram.h"

namespace {

const char* const recordHere = "Record Here";
const char* const hasEnded = "The recording has ended";

class SwayRecordingTest : public SwayProgramTest {
  protected:
    /// The program with a macro that types an x; `commands` prepare the system bus.
    void begin(std::initializer_list<std::string> commands, const std::string& macro = "keystroke \"x\"") {
        for (const std::string& command : commands) m_access.tell(command);
        setSystemBus(m_access.bus());
        start(macro);
        m_person = std::make_unique<ShownHands>(m_access, hands(), program().pid());
    }

    AccessWorld& access() { return m_access; }
    ShownHands& person() { return *m_person; }
    bool isKeyboardOpen() { return m_access.isOpenFor(program().pid()); }

    void press(std::uint8_t hotKey) { person().stroke({xkey::control, xkey::super, hotKey}); }
    void startRecording() {
        press(xkey::r);
        ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    }
    void stopRecording() {
        press(xkey::s);
        ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    }
    /// Waits for a message of the program's with that title, and closes it.
    void dismiss(const std::string& title) {
        ASSERT_TRUE(eventually([&] { return shows(title); })) << sway().message({"-t", "get_tree"});
        ASSERT_TRUE(eventually([&] { return sway().tries({"[title=\"^" + title + "$\"] focus"}); }));
        hands().stroke({xkey::returnKey});
        ASSERT_TRUE(eventually([&] { return !shows(title); }));
    }

    /// How many descriptors of each kind the program has: "socket", "/dev/null", ...
    std::map<std::string, int> descriptors() {
        std::map<std::string, int> kinds;
        const std::string folder = "/proc/" + std::to_string(program().pid()) + "/fd";
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::error_code failure;
            const std::string target = std::filesystem::read_symlink(entry.path(), failure);
            ++kinds[target.substr(0, target.find(":["))];
        }
        return kinds;
    }
    /// How often the program has been woken, all of its threads.
    long wakeUps() {
        long sum = 0;
        const std::string folder = "/proc/" + std::to_string(program().pid()) + "/task";
        for (const auto& thread : std::filesystem::directory_iterator(folder)) {
            std::ifstream status(thread.path() / "status");
            for (std::string word; status >> word;) {
                long count = 0;
                if (word == "voluntary_ctxt_switches:" && status >> count) sum += count;
            }
        }
        return sum;
    }
    /// Whether nothing wakes it for half a second.
    bool isAtRest() {
        const long before = wakeUps();
        return !eventually([&] { return wakeUps() != before; }, std::chrono::milliseconds(500));
    }

  private:
    AccessWorld m_access;
    std::unique_ptr<ShownHands> m_person;
};

TEST_F(SwayRecordingTest, aMacroIsRecordedStoppedPlayedAndPlayedThreeTimesByHotKeys) {
    begin({"serve", "allow"});
    const Foot foot(sway());
    startRecording();
    std::string text;
    for (const char* year : {"1970", "1638", "2549", "7081"})
        text += std::string("The quick brown Fox No. ") + year + " jumps. ";
    person().type(text);
    const std::string once = text + "\x13";
    person().stroke({xkey::control, xkey::s});
    ASSERT_EQ(foot.typed(once.size()), once);
    stopRecording();
    press(xkey::p);
    ASSERT_EQ(foot.typed(2 * once.size()), once + once);
    press(xkey::m);
    // Keys go to no window then.
    ASSERT_TRUE(eventually([this] {
        return sway().message({"-t", "get_seats"}).find("\"focus\": 0,") != std::string::npos;
    }));
    person().type("3");
    person().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(5 * once.size()), once + once + once + once + once);
    // Its last stroke saves what is in a field.
    for (const Field::Toolkit toolkit : {Field::Toolkit::qt, Field::Toolkit::gtk}) {
        const Field field(sway(), toolkit);
        press(xkey::p);
        EXPECT_EQ(field.saved(text), text);
    }
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_F(SwayRecordingTest, atRestNothingIsOpenAndTypingWakesNobody) {
    begin({"serve", "allow"});
    const Foot foot(sway());
    // Windows that are shown for the first time open files of their own.
    startRecording();
    stopRecording();
    ASSERT_TRUE(eventually([this] { return isAtRest(); }, std::chrono::seconds(30)));
    const auto before = descriptors();
    const long woken = wakeUps();
    const std::string text(300, 'n');
    person().type(text);
    EXPECT_EQ(foot.typed(text.size()), text);
    // A tenth of it would be for other reasons.
    EXPECT_LT(wakeUps() - woken, 30);
    startRecording();
    EXPECT_NE(descriptors(), before);
    stopRecording();
    EXPECT_TRUE(eventually([&] { return descriptors() == before; }));
}

TEST_F(SwayRecordingTest, aHeldKeyIsRecordedAsOftenAsItRepeats) {
    begin({"serve", "allow"});
    const Foot foot(sway());
    startRecording();
    person().press(xkey::b);
    ASSERT_TRUE(eventually([&] { return foot.typed().size() >= 5; }));
    person().release(xkey::b);
    person().type("n");
    ASSERT_TRUE(eventually([&] { return foot.typed().ends_with("n"); }));
    const std::string typed = foot.typed();
    stopRecording();
    press(xkey::p);
    ASSERT_TRUE(eventually([&] { return foot.typed().substr(typed.size()).ends_with("n"); }));
    const std::string played = foot.typed().substr(typed.size());
    // The last repeat and the release are moments of two clocks, the terminal's and ours.
    EXPECT_NEAR(static_cast<double>(played.size()), static_cast<double>(typed.size()), 1);
    EXPECT_EQ(played, std::string(played.size() - 1, 'b') + "n");
}

TEST_F(SwayRecordingTest, aPlayWaitsWhileHandsHoldModifiers) {
    begin({"serve", "allow"}, "keystroke \"a\"\ndelay 3\nkeystroke \"b\"");
    const Foot foot(sway());
    press(xkey::p);
    EXPECT_EQ(foot.typed(1), "a");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().press(xkey::control);
    EXPECT_FALSE(eventually([&] { return foot.typed() != "a"; }, std::chrono::milliseconds(4000)));
    person().release(xkey::control);
    EXPECT_EQ(foot.typed(2), "ab");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_F(SwayRecordingTest, aHeldEscapeEndsAPlay) {
    begin({"serve", "allow"}, "repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat");
    const Foot foot(sway());
    press(xkey::p);
    foot.typed(10);
    person().press(xkey::escape);
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    person().release(xkey::escape);
    EXPECT_LT(foot.typed().size(), 900U);
    hands().stroke({xkey::z});
    EXPECT_TRUE(eventually([&] { return foot.typed().ends_with("z"); }));
}

TEST_F(SwayRecordingTest, aRefusalRecordsNothingThatIsTypedElsewhere) {
    begin({"serve"});
    const Foot foot(sway());
    press(xkey::r);
    ASSERT_TRUE(eventually([this] { return shows(recordHere); }));
    foot.focus();
    person().type("ab");
    ASSERT_EQ(foot.typed(2), "ab");
    press(xkey::s);
    ASSERT_TRUE(eventually([this] { return !shows(recordHere); }));
    press(xkey::p);
    // Nothing was recorded: the macro is still the old one.
    EXPECT_EQ(foot.typed(3), "abx");
}

TEST_F(SwayRecordingTest, aServiceThatAnswersNonsenseRecordsNothing) {
    begin({"nonsense"});
    const Foot foot(sway());
    press(xkey::r);
    ASSERT_TRUE(eventually([this] { return shows(recordHere); }));
    EXPECT_FALSE(isKeyboardOpen());
    EXPECT_TRUE(program().isRunning());
}

TEST_F(SwayRecordingTest, whatIsTypedWhileTheUserIsAskedIsNotRecorded) {
    begin({"serve", "allow", "hang"});
    const Foot foot(sway());
    press(xkey::r);
    access().tell("await_question");
    EXPECT_FALSE(isKeyboardOpen());
    person().type("secret");
    ASSERT_EQ(foot.typed(6), "secret");
    access().tell("release");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().type("ab");
    ASSERT_EQ(foot.typed(8), "secretab");
    stopRecording();
    press(xkey::p);
    EXPECT_EQ(foot.typed(10), "secretabab");
}

TEST_F(SwayRecordingTest, aRecordingThatIsStoppedWhileTheUserIsAskedOpensNothing) {
    begin({"serve", "allow", "hang"});
    const Foot foot(sway());
    press(xkey::r);
    access().tell("await_question");
    press(xkey::s);
    access().tell("release");
    press(xkey::p);
    EXPECT_EQ(foot.typed(1), "x");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_F(SwayRecordingTest, aServiceThatIsKilledEndsTheRecordingAndWhatWasTypedIsKept) {
    begin({"serve", "allow"});
    const Foot foot(sway());
    startRecording();
    person().type("ab");
    ASSERT_EQ(foot.typed(2), "ab");
    access().tell("kill");
    dismiss(hasEnded);
    EXPECT_FALSE(isKeyboardOpen());
    foot.focus();
    press(xkey::p);
    EXPECT_EQ(foot.typed(4), "abab");
}

TEST_F(SwayRecordingTest, aSessionThatGoesToTheBackEndsTheRecordingAndWhatWasTypedIsKept) {
    begin({"serve", "allow"});
    const Foot foot(sway());
    startRecording();
    person().type("ab");
    ASSERT_EQ(foot.typed(2), "ab");
    access().endKeyboard();
    access().tell("back");
    dismiss(hasEnded);
    EXPECT_FALSE(isKeyboardOpen());
    foot.focus();
    press(xkey::p);
    EXPECT_EQ(foot.typed(4), "abab");
}

}  // namespace
