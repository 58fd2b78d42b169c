// SPDX-License-Identifier: MIT
#include "access/Grant.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace {

/// Keyboards by their names; each is a file that holds nothing.
class FakeDevices final : public keyaccess::InputDevices {
  public:
    std::vector<keyaccess::OpenKeyboard> openKeyboards(const std::set<std::string>& except) override {
        std::vector<keyaccess::OpenKeyboard> opened;
        for (const std::string& name : present) {
            if (except.contains(name)) continue;
            opened.push_back({Descriptor(open("/dev/null", O_RDONLY | O_CLOEXEC)), name});
            m_names[opened.back().descriptor.number()] = name;
        }
        return opened;
    }
    void revoke(int keyboard) override { revoked.push_back(m_names[keyboard]); }
    bool isPresent(int keyboard) const override { return present.contains(m_names.at(keyboard)); }
    Descriptor makeKeyboard() override {
        std::array<int, 2> ends{};
        if (!canMake || pipe(ends.data()) != 0) return {};
        m_reader.reset(ends[0]);
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        return Descriptor(ends[1]);
    }
    bool type(int keyboard, std::uint16_t code, bool press) override {
        typed.push_back({code, press});
        return write(keyboard, "x", 1) == 1;
    }
    /// Whether the keyboard that was made is gone: nobody can write to it.
    bool isTypingGone() const {
        char left = 0;
        while (read(m_reader.number(), &left, 1) == 1) continue;
        return read(m_reader.number(), &left, 1) == 0;
    }

    std::set<std::string> present{"event2", "event5"};
    bool canMake = true;
    std::vector<std::string> revoked;
    std::vector<keyaccess::Stroke> typed;

  private:
    std::map<int, std::string> m_names;
    Descriptor m_reader;
};

class GrantTest : public testing::Test {
  protected:
    std::vector<std::string> open() {
        std::vector<std::string> names;
        for (const auto& [name, descriptor] : m_grant->openKeyboards()) names.push_back(name);
        return names;
    }

    using Names = std::vector<std::string>;
    FakeDevices m_devices;
    std::unique_ptr<keyaccess::Grant> m_grant =
        std::make_unique<keyaccess::Grant>(m_devices, keyaccess::Identity{1000, 77, "/session"});
};

TEST_F(GrantTest, eachKeyboardIsOpenedOnce) {
    EXPECT_EQ(open(), (Names{"event2", "event5"}));
    EXPECT_EQ(open(), Names{});
    m_devices.present.insert("event7");
    EXPECT_EQ(open(), Names{"event7"});
}

TEST_F(GrantTest, aKeyboardThatWasGoneIsOpenedAnew) {
    open();
    m_devices.present.erase("event5");
    EXPECT_EQ(open(), Names{});
    m_devices.present.insert("event5");
    EXPECT_EQ(open(), Names{"event5"});
}

TEST_F(GrantTest, itsEndRevokesAll) {
    open();
    m_grant.reset();
    EXPECT_EQ(m_devices.revoked, (Names{"event2", "event5"}));
}

TEST_F(GrantTest, whatIsClosedIsRevokedOnce) {
    open();
    EXPECT_TRUE(m_grant->mayRead());
    m_grant->closeKeyboards();
    EXPECT_FALSE(m_grant->mayRead());
    EXPECT_TRUE(m_grant->isEmpty());
    m_grant.reset();
    EXPECT_EQ(m_devices.revoked, (Names{"event2", "event5"}));
}

TEST_F(GrantTest, theKeyboardToTypeOnIsThereUntilItIsClosed) {
    ASSERT_TRUE(m_grant->openTyping());
    EXPECT_TRUE(m_grant->type({{30, true}}));
    EXPECT_FALSE(m_devices.isTypingGone());
    m_grant->closeTyping();
    EXPECT_TRUE(m_devices.isTypingGone());
    EXPECT_FALSE(m_grant->mayType());
}

TEST_F(GrantTest, itsEndLetsGoOfWhatIsTyped) {
    ASSERT_TRUE(m_grant->openTyping());
    m_grant->type({{30, true}});
    m_grant.reset();
    EXPECT_TRUE(m_devices.isTypingGone());
}

TEST_F(GrantTest, typingEndsBeforeTheKernelsHotKey) {
    ASSERT_TRUE(m_grant->openTyping());
    EXPECT_FALSE(m_grant->type({{56, true}, {99, true}, {48, true}}));
    EXPECT_EQ(m_devices.typed, (std::vector<keyaccess::Stroke>{{56, true}}));
}

TEST_F(GrantTest, whereNoKeyboardCanBeMadeThereIsNone) {
    m_devices.canMake = false;
    EXPECT_FALSE(m_grant->openTyping());
    EXPECT_TRUE(m_grant->isEmpty());
}

}  // namespace
