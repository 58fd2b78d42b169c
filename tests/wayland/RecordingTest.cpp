// SPDX-License-Identifier: MIT
//
// keyrill records what is typed into native programs: from keyboards that keyrill-access opens, and only
// while they are needed. What is recorded is judged by what playing it types.
#include <chrono>
#include <fstream>
#include <map>

#include "wayland/AccessWorld.h"
#include "wayland/Places.h"

namespace {

const char* const recordHere = "Record Here";
const char* const hasEnded = "The recording has ended";

class RecordingTest : public testing::TestWithParam<Place> {
  protected:
    /// The program with a macro that types an x; `commands` prepare the system bus.
    void begin(std::initializer_list<std::string> commands, const std::string& macro = "keystroke \"x\"") {
        for (const std::string& command : commands) m_access.tell(command);
        m_session->setSystemBus(m_access.bus());
        m_session->start(macro);
        m_person = std::make_unique<ShownHands>(m_access, m_session->hands(), program().pid());
    }
    std::unique_ptr<Target> openTarget() const { return m_session->openTarget(GetParam().target); }

    ProgramSession& session() { return *m_session; }
    Child& program() { return m_session->program(); }
    bool shows(const std::string& title) const { return m_session->shows(title); }
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
        ASSERT_TRUE(eventually([&] { return m_session->compositor().focus(title); })) << m_session->log();
        m_session->hands().stroke({xkey::returnKey});
        ASSERT_TRUE(eventually([&] { return !shows(title); }));
        m_session->awaitRest();
    }

    /// In the window that keys are recorded in alone.
    void expectNothingRecordedElsewhere(const Target& target) {
        ASSERT_TRUE(eventually([this] { return m_session->compositor().hasFocus(recordHere); }));
        // It answers once it has brought its window to the front.
        ASSERT_EQ(m_session->ask("record"), "keyrill: A macro is being recorded already.\n");
        target.focus();
        person().type("ab");
        ASSERT_EQ(target.text("ab"), "ab");
        EXPECT_FALSE(isKeyboardOpen());
        press(xkey::s);
        ASSERT_TRUE(eventually([this] { return !shows(recordHere); }));
        press(xkey::p);
        // The macro is still the old one.
        EXPECT_EQ(target.text("abx"), "abx");
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
    std::unique_ptr<ProgramSession> m_session = GetParam().open();
    std::unique_ptr<ShownHands> m_person;
};

TEST_P(RecordingTest, aMacroIsRecordedStoppedPlayedAndPlayedThreeTimesByHotKeys) {
    begin({"serve", "allow"});
    auto target = openTarget();
    startRecording();
    std::string text;
    for (const char* year : {"1970", "1638", "2549", "7081"})
        text += std::string("The quick brown Fox No. ") + year + " jumps. ";
    person().type(text);
    const std::string once = target->afterSaving(text);
    person().stroke({xkey::control, xkey::s});
    ASSERT_EQ(target->text(once), once);
    stopRecording();
    press(xkey::p);
    ASSERT_EQ(target->text(once + once), once + once);
    // Of a field the last stroke changes nothing; with what hands hold on the way to the prompt it would be
    // another one.
    session().awaitRest();
    press(xkey::m);
    ASSERT_TRUE(eventually([this] { return session().hasLayerKeys(); }));
    person().type("3");
    person().stroke({xkey::returnKey});
    ASSERT_EQ(target->text(once + once + once + once + once), once + once + once + once + once);
    session().awaitRest();
    target.reset();
    // Its last stroke saves what is in a field.
    for (const Field::Toolkit toolkit : {Field::Toolkit::qt, Field::Toolkit::gtk}) {
        // The one before has the same title.
        ASSERT_TRUE(eventually([this] { return !shows("field"); }));
        const Field field(session().compositor(), toolkit);
        press(xkey::p);
        EXPECT_EQ(field.saved(text), text);
        session().awaitRest();
    }
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_P(RecordingTest, atRestNothingIsOpenAndTypingWakesNobody) {
    begin({"serve", "allow"});
    const auto target = openTarget();
    // Windows that are shown for the first time open files of their own.
    startRecording();
    stopRecording();
    ASSERT_TRUE(eventually([this] { return isAtRest(); }, std::chrono::seconds(30)));
    const auto before = descriptors();
    const long woken = wakeUps();
    const std::string text(300, 'n');
    person().type(text);
    EXPECT_EQ(target->text(text), text);
    // A tenth of it would be for other reasons.
    EXPECT_LT(wakeUps() - woken, 30);
    startRecording();
    EXPECT_NE(descriptors(), before);
    stopRecording();
    EXPECT_TRUE(eventually([&] { return descriptors() == before; }));
}

TEST_P(RecordingTest, aHeldKeyIsRecordedAsOftenAsItRepeats) {
    begin({"serve", "allow"});
    const auto target = openTarget();
    startRecording();
    const auto begin = std::chrono::steady_clock::now();
    person().press(xkey::b);
    const auto isDown = std::chrono::steady_clock::now();
    ASSERT_TRUE(eventually([&] { return target->text().size() >= 5; }));
    const auto end = std::chrono::steady_clock::now();
    person().release(xkey::b);
    const auto isUp = std::chrono::steady_clock::now();
    person().type("n");
    ASSERT_TRUE(eventually([&] { return target->text().ends_with("n"); }));
    const std::string typed = target->text();
    stopRecording();
    press(xkey::p);
    ASSERT_TRUE(eventually([&] { return target->text().substr(typed.size()).ends_with("n"); }));
    const std::string played = target->text().substr(typed.size());
    EXPECT_EQ(played, std::string(played.size() - 1, 'b') + "n");
    // A busy program may miss some of what the compositor has it repeat.
    EXPECT_GE(played.size() - 1, GetParam().strokesOf(end - isDown));
    EXPECT_LE(played.size() - 1, GetParam().strokesOf(isUp - begin));
}

TEST_P(RecordingTest, aPlayWaitsWhileHandsHoldModifiers) {
    begin({"serve", "allow"}, "keystroke \"a\"\ndelay 3\nkeystroke \"b\"");
    const auto target = openTarget();
    press(xkey::p);
    EXPECT_EQ(target->text("a"), "a");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().press(xkey::control);
    EXPECT_FALSE(eventually([&] { return target->text() != "a"; }, std::chrono::milliseconds(4000)));
    person().release(xkey::control);
    EXPECT_EQ(target->text("ab"), "ab");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_P(RecordingTest, aHeldEscapeEndsAPlay) {
    begin({"serve", "allow"}, "repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat");
    const auto target = openTarget();
    press(xkey::p);
    ASSERT_TRUE(eventually([&] { return target->text().size() >= 10; }, std::chrono::seconds(20)));
    person().press(xkey::escape);
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    person().release(xkey::escape);
    EXPECT_LT(target->text().size(), 900U);
    person().type("z");
    EXPECT_TRUE(eventually([&] { return target->text().ends_with("z"); }));
}

TEST_P(RecordingTest, aRefusalRecordsNothingThatIsTypedElsewhere) {
    begin({"serve"});
    const auto target = openTarget();
    press(xkey::r);
    expectNothingRecordedElsewhere(*target);
}

TEST_P(RecordingTest, aServiceThatAnswersNonsenseRecordsNothing) {
    begin({"nonsense"});
    const auto target = openTarget();
    press(xkey::r);
    expectNothingRecordedElsewhere(*target);
}

TEST_P(RecordingTest, whatIsTypedWhileTheUserIsAskedIsNotRecorded) {
    begin({"serve", "allow", "hang"});
    const auto target = openTarget();
    press(xkey::r);
    access().tell("await_question");
    EXPECT_FALSE(isKeyboardOpen());
    person().type("secret");
    ASSERT_EQ(target->text("secret"), "secret");
    access().tell("release");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().type("ab");
    ASSERT_EQ(target->text("secretab"), "secretab");
    stopRecording();
    press(xkey::p);
    EXPECT_EQ(target->text("secretabab"), "secretabab");
}

TEST_P(RecordingTest, aRecordingThatIsStoppedWhileTheUserIsAskedOpensNothing) {
    begin({"serve", "allow", "hang"});
    const auto target = openTarget();
    press(xkey::r);
    access().tell("await_question");
    press(xkey::s);
    ASSERT_TRUE(eventually(
        [this] { return session().ask("save-pause") == "keyrill: Nothing is being recorded.\n"; }));
    access().tell("release");
    EXPECT_FALSE(eventually([this] { return isKeyboardOpen(); }, std::chrono::milliseconds(500)));
    person().type("ab");
    ASSERT_EQ(target->text("ab"), "ab");
    press(xkey::p);
    EXPECT_EQ(target->text("abx"), "abx");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
}

TEST_P(RecordingTest, aServiceThatIsKilledEndsTheRecordingAndWhatWasTypedIsKept) {
    begin({"serve", "allow"});
    const auto target = openTarget();
    startRecording();
    person().type("ab");
    ASSERT_EQ(target->text("ab"), "ab");
    access().tell("kill");
    // Without anybody who stops it.
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    dismiss(hasEnded);
    target->focus();
    press(xkey::p);
    EXPECT_EQ(target->text("abab"), "abab");
}

TEST_P(RecordingTest, aSessionThatGoesToTheBackEndsTheRecordingAndWhatWasTypedIsKept) {
    begin({"serve", "allow"});
    const auto target = openTarget();
    startRecording();
    person().type("ab");
    ASSERT_EQ(target->text("ab"), "ab");
    access().endKeyboard();
    access().tell("back");
    EXPECT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    dismiss(hasEnded);
    target->focus();
    press(xkey::p);
    EXPECT_EQ(target->text("abab"), "abab");
}

INSTANTIATE_TEST_SUITE_P(Sessions, RecordingTest, testing::Values(place::sway, place::kwin), nameOf);

}  // namespace
