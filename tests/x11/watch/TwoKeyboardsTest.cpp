// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "display/CoreClient.h"
#include "display/NestedServers.h"
#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/SlaveKeyboards.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/Keys.h"

namespace {

enum class Keyboard { real, virtualOne };

/// A real keyboard and a virtual one on one server, an application, and the monitor beside it.
class TwoKeyboardsTest : public testing::Test {
  protected:
    using Log = std::vector<std::string>;

    TwoKeyboardsTest() {
        for (const std::string& display : {m_servers.outerDisplay(), m_servers.display()}) {
            outputOf({"xset", "r", "off"}, {{"DISPLAY", display}});
        }
        m_application = std::make_unique<CoreClient>(m_servers.display());
        auto manager = x11::X11EventManager::open(m_clock, m_servers.display());
        EXPECT_TRUE(manager);
        m_manager = std::move(manager).value();
        EXPECT_TRUE(m_manager->install([this](const KeyEvent& event) {
            if (event.kind == KeyEventKind::modifiersChanged) return;
            const bool isUp = event.kind == KeyEventKind::keyUp;
            m_recorded.push_back((isUp ? "up " : "down ") + std::to_string(event.keyCode));
        }));
        EXPECT_TRUE(x11::Extensions(m_servers.program().connection())
                        .use({x11::Extension::input, x11::Extension::keyboard}));
    }

    /// Returns when the application and the monitor have been told.
    void strike(Keyboard keyboard, std::uint8_t keycode, bool press) {
        const Hands& hands = keyboard == Keyboard::real ? m_servers.user() : m_servers.program();
        press ? hands.press(keycode) : hands.release(keycode);
        ASSERT_TRUE(eventually([&] {
            m_servers.finish();
            return isDown(keyboard, keycode) == press;
        }));
        m_servers.finish();
        m_manager->dispatch();
    }

    const Log& recorded() const { return m_recorded; }
    /// What the application was told, in the words of the record.
    Log received() {
        Log log;
        for (const CoreClient::KeyEvent& event : m_application->events()) {
            const std::uint32_t code = keycode::fromEvdev(xkbcode::toEvdev(event.keycode));
            log.push_back((event.press ? "down " : "up ") + std::to_string(code));
        }
        return log;
    }

  private:
    bool isDown(Keyboard keyboard, std::uint8_t keycode) const {
        const x11::XConnection& connection = m_servers.program().connection();
        for (const x11::SlaveKeyboard& slave : x11::slaveKeyboards(connection)) {
            if (slave.isXtest != (keyboard == Keyboard::virtualOne)) continue;
            if (x11::keysDownOn(connection, slave)[keycode]) return true;
        }
        return false;
    }

    NestedServers m_servers;
    SteadyClock m_clock;
    std::unique_ptr<CoreClient> m_application;
    std::unique_ptr<x11::X11EventManager> m_manager;
    Log m_recorded;
};

TEST_F(TwoKeyboardsTest, aKeyThatIsDownOnBothIsDownOnce) {
    strike(Keyboard::real, xkey::a, true);
    strike(Keyboard::virtualOne, xkey::a, true);
    strike(Keyboard::real, xkey::a, false);
    strike(Keyboard::virtualOne, xkey::a, false);
    EXPECT_EQ(recorded(), (Log{"down 0", "up 0"}));
    EXPECT_EQ(received(), recorded());
}

TEST_F(TwoKeyboardsTest, aKeyHeldOnOneAndTappedOnTheOtherIsUpWithTheTap) {
    strike(Keyboard::real, xkey::a, true);
    strike(Keyboard::virtualOne, xkey::a, true);
    strike(Keyboard::virtualOne, xkey::a, false);
    strike(Keyboard::virtualOne, xkey::b, true);
    strike(Keyboard::virtualOne, xkey::b, false);
    strike(Keyboard::real, xkey::a, false);
    EXPECT_EQ(recorded(), (Log{"down 0", "up 0", "down 11", "up 11"}));
    EXPECT_EQ(received(), recorded());
}

TEST_F(TwoKeyboardsTest, whateverIsPressedTheRecordIsWhatTheApplicationGot) {
    constexpr std::array<std::uint8_t, 3> keys = {xkey::a, xkey::b, xkey::q};
    std::mt19937 random(7);
    std::array<std::array<bool, 3>, 2> down{};
    for (int i = 0; i < 400; ++i) {
        const std::size_t keyboard = random() % 2;
        const std::size_t key = random() % keys.size();
        bool& isDown = down.at(keyboard).at(key);
        isDown = !isDown;
        strike(keyboard == 0 ? Keyboard::real : Keyboard::virtualOne, keys.at(key), isDown);
        ASSERT_EQ(recorded(), received()) << "stroke " << i;
    }
}

}  // namespace
