// SPDX-License-Identifier: MIT
#include <fcntl.h>

#include <filesystem>

#include "evdev/EvdevWorld.h"
#include "keymap/NamedKeymap.h"
#include "platform/evdev/FallbackOpener.h"
#include "platform/run/RunWatch.h"

namespace {

using evdev::DeviceOpener;

/// Answers when it is told to.
class PatientOpener final : public DeviceOpener {
  public:
    void open(const std::set<std::string>& held, Question question, Opened opened) override {
        log.push_back((question == Question::allowed ? "asked beside" : "tried beside") + words(held));
        m_opened = std::move(opened);
    }
    void close() override {
        log.emplace_back("closed");
        m_opened = {};
    }

    void whenLost(std::function<void(const Error&)> lost) override { m_lost = std::move(lost); }

    bool isWaiting() const { return static_cast<bool>(m_opened); }
    void lose(const Error& why) { m_lost(why); }
    void answer(Result<std::vector<evdev::OpenedDevice>> result) {
        std::exchange(m_opened, {})(std::move(result));
    }

    std::vector<std::string> log;

  private:
    static std::string words(const std::set<std::string>& names) {
        std::string text;
        for (const std::string& name : names) text += ' ' + name;
        return text;
    }

    Opened m_opened;
    std::function<void(const Error&)> m_lost;
};

const Error refused{"Refused.", "Ask again."};

class OpeningTest : public testing::Test {
  protected:
    using Log = std::vector<std::string>;

    OpeningTest() {
        m_monitor.observeAccess([this](EventMonitor::Access access, const std::optional<Error>& why) {
            m_told.push_back(words(access) + (why ? " " + why->message.text() : ""));
        });
        EXPECT_TRUE(m_monitor.install([this](const KeyEvent& event) {
            if (event.kind == KeyEventKind::keyDown) m_typed += event.character;
        }));
    }

    static std::string words(EventMonitor::Access access) {
        switch (access) {
            case EventMonitor::Access::asked:
                return "asked";
            case EventMonitor::Access::given:
                return "given";
            case EventMonitor::Access::refused:
                return "refused";
            case EventMonitor::Access::ended:
                return "ended";
        }
        return "?";
    }
    std::vector<evdev::OpenedDevice> opened(int number) const {
        const std::string name = "event" + std::to_string(number);
        std::vector<evdev::OpenedDevice> devices;
        devices.push_back({Descriptor(open((m_input.folders().devices + "/" + name).c_str(),
                                           O_RDONLY | O_NONBLOCK | O_CLOEXEC)),
                           name});
        return devices;
    }
    void tap(const FakeInput::Device& device) {
        device.key(30, 1, m_clock.now());
        device.key(30, 0, m_clock.now());
        m_monitor.dispatch();
    }

    FakeInput m_input;
    FakeCalls m_calls;
    FakeClock m_clock;
    FakeGrabber m_grabber;
    PatientOpener m_opener;
    std::unique_ptr<FakeInput::Device> m_keyboard = m_input.plug(0);
    evdev::EvdevEventMonitor m_monitor{{m_clock, m_opener, m_calls, m_grabber, m_input.folders()},
                                       namedKeymap("us")};
    Log m_told;
    std::string m_typed;
};

TEST_F(OpeningTest, theUserIsAskedForARecordingAndKeysAreHeardFromHisAnswerOn) {
    EXPECT_EQ(m_opener.log, Log{});
    m_monitor.setRecording(true);
    EXPECT_EQ(m_opener.log, Log{"asked beside"});
    m_opener.answer(opened(0));
    tap(*m_keyboard);
    EXPECT_EQ(m_typed, "a");
    m_monitor.setRecording(false);
    EXPECT_EQ(m_opener.log, (Log{"asked beside", "closed"}));
}

TEST_F(OpeningTest, aRefusalIsToldOnceAndTheNextRecordingAsksAgain) {
    m_monitor.setRecording(true);
    m_opener.answer(refused);
    m_monitor.dispatch();
    m_monitor.dispatch();
    EXPECT_EQ(m_told, Log{"refused Refused."});
    m_monitor.setRecording(false);
    m_monitor.setRecording(true);
    m_opener.answer(refused);
    m_monitor.dispatch();
    EXPECT_EQ(m_opener.log, (Log{"asked beside", "closed", "asked beside"}));
    EXPECT_EQ(m_told, (Log{"refused Refused.", "refused Refused."}));
}

TEST_F(OpeningTest, aQuestionThatTakesAWhileIsToldAndItsAnswer) {
    m_monitor.setRecording(true);
    m_monitor.dispatch();
    EXPECT_EQ(m_told, Log{"asked"});
    m_opener.answer(opened(0));
    m_monitor.dispatch();
    EXPECT_EQ(m_told, (Log{"asked", "given"}));
}

TEST_F(OpeningTest, whatIsGivenAtOnceIsNotTold) {
    m_monitor.setRecording(true);
    m_opener.answer(opened(0));
    m_monitor.dispatch();
    EXPECT_EQ(m_told, Log{});
}

TEST_F(OpeningTest, whatARunIsRefusedIsToldToNobody) {
    m_monitor.runWatch().runStarts();
    m_opener.answer(refused);
    m_monitor.runWatch().runEnds();
    m_monitor.dispatch();
    EXPECT_EQ(m_told, Log{});
}

TEST_F(OpeningTest, whatIsLostEndsARecordingAndWithItWhatHasNotBeenRead) {
    m_monitor.setRecording(true);
    m_opener.answer(opened(0));
    m_keyboard->key(30, 1, m_clock.now());
    m_monitor.dispatch();
    m_keyboard->key(31, 1, m_clock.now());
    m_opener.lose({"Lost.", ""});
    m_keyboard->key(32, 1, m_clock.now());
    m_monitor.dispatch();
    EXPECT_EQ(m_typed, "a");
    EXPECT_EQ(m_told, Log{"ended Lost."});
    EXPECT_FALSE(m_monitor.runWatch().handsHoldKeys());
}

TEST_F(OpeningTest, aRunAsksNobodyAndARecordingInItDoes) {
    m_monitor.runWatch().runStarts();
    EXPECT_EQ(m_opener.log, Log{"tried beside"});
    m_monitor.setRecording(true);
    EXPECT_EQ(m_opener.log, (Log{"tried beside", "asked beside"}));
    m_monitor.runWatch().runEnds();
    EXPECT_EQ(m_opener.log, (Log{"tried beside", "asked beside"}));
}

TEST_F(OpeningTest, whatARunWasRefusedSaysNothingOfTheRecordingInIt) {
    m_monitor.runWatch().runStarts();
    m_opener.answer(refused);
    m_monitor.setRecording(true);
    m_monitor.runWatch().runEnds();
    m_monitor.dispatch();
    EXPECT_EQ(m_told, Log{"asked"});
    m_opener.answer(opened(0));
    m_monitor.dispatch();
    EXPECT_EQ(m_told, (Log{"asked", "given"}));
}

TEST_F(OpeningTest, aRunAfterARefusalTriesOnceMoreWithoutAsking) {
    m_monitor.setRecording(true);
    m_opener.answer(refused);
    m_monitor.runWatch().runStarts();
    EXPECT_EQ(m_opener.log, (Log{"asked beside", "tried beside"}));
}

TEST_F(OpeningTest, aRecordingThatEndsBeforeTheAnswerTakesTheQuestionBack) {
    m_monitor.setRecording(true);
    m_monitor.setRecording(false);
    EXPECT_EQ(m_opener.log, (Log{"asked beside", "closed"}));
    EXPECT_FALSE(m_opener.isWaiting());
}

TEST_F(OpeningTest, aKeyboardPluggedInDuringTheQuestionIsAskedForAfterIt) {
    m_monitor.setRecording(true);
    const auto second = m_input.plug(1);
    m_monitor.dispatch();
    EXPECT_EQ(m_opener.log, Log{"asked beside"});
    m_opener.answer(opened(0));
    EXPECT_EQ(m_opener.log, (Log{"asked beside", "tried beside event0"}));
    m_opener.answer(opened(1));
    tap(*second);
    EXPECT_EQ(m_typed, "a");
}

TEST_F(OpeningTest, oneThatCannotBeOpenedLeavesTheOthersOpen) {
    m_monitor.setRecording(true);
    m_opener.answer(opened(0));
    const auto second = m_input.plug(1);
    m_monitor.dispatch();
    m_opener.answer(refused);
    tap(*m_keyboard);
    EXPECT_EQ(m_typed, "a");
    EXPECT_EQ(m_told, Log{});
}

TEST_F(OpeningTest, hotKeysComeFromTheDesktopUntilKeyboardsAreOpen) {
    int pressed = 0;
    m_monitor.install([&pressed](HotKeyId) { ++pressed; }, {});
    m_monitor.request({.id = 1, .name = "record", .keyCode = key::f5});
    m_monitor.setRecording(true);
    m_monitor.desktopTells(m_grabber.taken().front(), true);
    m_monitor.dispatch();
    EXPECT_EQ(pressed, 1);
    m_monitor.desktopTells(m_grabber.taken().front(), false);
    m_opener.answer(opened(0));
    m_keyboard->key(63, 1, m_clock.now());
    m_monitor.dispatch();
    m_monitor.desktopTells(m_grabber.taken().front(), true);
    m_monitor.dispatch();
    EXPECT_EQ(pressed, 2);
}

TEST_F(OpeningTest, theSecondIsAskedOnlyWhereTheFirstFails) {
    evdev::DirectOpener direct(m_input.folders());
    PatientOpener asking;
    evdev::FallbackOpener either(direct, asking);
    std::vector<std::string> names;
    const auto note = [&names](const Result<std::vector<evdev::OpenedDevice>>& devices) {
        for (const auto& device : devices.value()) names.push_back(device.name);
    };
    either.open({}, DeviceOpener::Question::allowed, note);
    EXPECT_EQ(names, Log{"event0"});
    EXPECT_EQ(asking.log, Log{});

    PatientOpener failing;
    evdev::FallbackOpener second(failing, asking);
    second.open({}, DeviceOpener::Question::allowed, note);
    EXPECT_EQ(asking.log, Log{"asked beside"});
    second.open({"event0"}, DeviceOpener::Question::avoided, note);
    EXPECT_EQ(asking.log, (Log{"asked beside", "tried beside event0"}));
    second.close();
    EXPECT_EQ(asking.log.back(), "closed");
}

TEST_F(OpeningTest, theSecondIsAskedWhereTheFirstSeesNoKeyboard) {
    m_keyboard.reset();
    evdev::DirectOpener direct(m_input.folders());
    EXPECT_FALSE(direct.mayOpen());
    PatientOpener asking;
    evdev::FallbackOpener either(direct, asking);
    either.open({}, DeviceOpener::Question::allowed, [](const auto&) {});
    EXPECT_EQ(asking.log, Log{"asked beside"});
}

TEST_F(OpeningTest, theFirstIsAskedOnWhenItsKeyboardsAreGone) {
    evdev::DirectOpener direct(m_input.folders());
    EXPECT_TRUE(direct.mayOpen());
    PatientOpener asking;
    evdev::FallbackOpener either(direct, asking);
    either.open({}, DeviceOpener::Question::allowed, [](const auto&) {});
    m_keyboard.reset();
    bool isAnswered = false;
    either.open({}, DeviceOpener::Question::avoided,
                [&isAnswered](const auto& devices) { isAnswered = devices && devices.value().empty(); });
    EXPECT_TRUE(isAnswered);
    EXPECT_EQ(asking.log, Log{});
}

TEST_F(OpeningTest, aDeviceFileThatCannotBeOpenedIsNamed) {
    m_keyboard.reset();
    const auto listed = m_input.plug(7);
    std::filesystem::remove(m_input.folders().devices + "/event7");
    std::filesystem::create_symlink("event7", m_input.folders().devices + "/event7");
    evdev::DirectOpener direct(m_input.folders());
    std::optional<Error> failure;
    direct.open({}, DeviceOpener::Question::allowed, [&failure](const auto& answer) {
        if (!answer) failure = answer.error();
    });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->message, "The keyboard cannot be read: " + m_input.folders().devices +
                                    "/event7: Too many levels of symbolic links.");
}

}  // namespace
