// SPDX-License-Identifier: MIT
//
// The hot keys of a Wayland session and their one order with the keys, where the kernel shows these and the
// compositor takes the combinations: a person's hands are at both.
#include <cstdlib>

#include "compositor/KWin.h"
#include "compositor/KWinHands.h"
#include "compositor/Sway.h"
#include "compositor/WaylandHands.h"
#include "contracts/HotKeysContract.h"
#include "evdev/EvdevWorld.h"
#include "keymap/NamedKeymap.h"
#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/wayland/Binders.h"
#include "platform/wayland/DesktopServices.h"
#include "platform/wayland/DesktopSignals.h"
#include "platform/wayland/SeatKeymap.h"

namespace {

std::uint8_t xkbOf(std::uint32_t keyCode) { return xkbcode::fromEvdev(*keycode::evdevFor(keyCode)); }

/// The test is a program of that session from now on.
void enter(const Compositor& compositor) {
    for (const auto& [name, value] : compositor.environment()) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }
}

class SwayDesk {
  public:
    SwayDesk() { enter(m_sway); }

    Hands& hands() { return m_hands; }
    void otherTakes(std::uint32_t keyCode, std::uint32_t modifiers) {
        std::string combination;
        if ((modifiers & modifier::control) != 0) combination += "Ctrl+";
        if ((modifiers & modifier::command) != 0) combination += "Mod4+";
        m_sway.configure("bindcode " + combination + std::to_string(xkbOf(keyCode)) + " nop the user's\n");
        m_sway.message({"reload"});
    }
    /// Once it answers, whoever listens has been told what went before.
    void awaitAnswer() const { m_sway.message({"-t", "get_version"}); }

  private:
    Sway m_sway;
    WaylandHands m_hands{m_sway.socket()};
};

class KWinDesk {
  public:
    KWinDesk() {
        enter(m_kwin);
        // Ctrl+Super+A is KWin's own until its user gives it up.
        call("setShortcutKeys", {"['kwin', 'Activate Window Demanding Attention', 'KWin', 'Activate Window "
                                 "Demanding Attention']",
                                 "[]", "6"});
    }

    Hands& hands() { return m_hands; }
    void otherTakes(std::uint32_t keyCode, std::uint32_t modifiers) {
        constexpr unsigned qtControl = 0x04000000;
        constexpr unsigned qtMeta = 0x10000000;
        auto key = xkb_keysym_to_upper(namedKeymap("us")->symbol(xkbOf(keyCode), 0, 0));
        if ((modifiers & modifier::control) != 0) key |= qtControl;
        if ((modifiers & modifier::command) != 0) key |= qtMeta;
        const std::string action = "['other', 'action', 'Other', 'Action']";
        call("doRegister", {action});
        call("setShortcutKeys", {action, "[([" + std::to_string(key) + ", 0, 0, 0],)]", "6"});
    }
    void awaitAnswer() const { call("allComponents", {}); }

  private:
    void call(const std::string& method, const std::vector<std::string>& arguments) const {
        std::vector<std::string> whole{"-d", "org.kde.kglobalaccel",          "-o", "/kglobalaccel",
                                       "-m", "org.kde.KGlobalAccel." + method};
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        m_kwin.call(whole);
    }

    KWin m_kwin;
    KWinHands m_hands{m_kwin.socket()};
};

/// The kernel's keyboard is a pipe, for which time stands still until it is turned.
template <typename Desk>
class CompositorWorld final : public KeyboardWorld {
  public:
    CompositorWorld() { m_world.evdevMonitor().listenTo(m_signals); }

    EventMonitor& monitor() override { return m_world.monitor(); }
    HotKeys& hotKeys() override { return m_world.hotKeys(); }
    void press(std::uint32_t keyCode) override {
        m_world.press(keyCode);
        m_desk.hands().press(xkbOf(keyCode));
    }
    void release(std::uint32_t keyCode) override {
        m_world.release(keyCode);
        m_desk.hands().release(xkbOf(keyCode));
    }
    void holdUntilRepeats(std::uint32_t keyCode, int atLeast) override {
        m_desk.hands().press(xkbOf(keyCode));
        m_world.holdUntilRepeats(keyCode, atLeast);
    }
    void setCapsLock(bool on) override {
        if (std::exchange(m_capsLock, on) == on) return;
        m_world.setCapsLock(on);
        m_desk.hands().stroke({xkbOf(key::capsLock)});
    }
    void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) override {
        m_desk.otherTakes(keyCode, modifiers);
        settle();
    }
    void settle() override {
        m_desk.awaitAnswer();
        m_world.settle();
    }

  private:
    Desk m_desk;
    std::unique_ptr<wayland::WaylandConnection> m_connection =
        std::move(wayland::WaylandConnection::open()).value();
    wayland::DesktopServices m_services{*m_connection};
    wayland::SeatKeymap m_seat{*m_connection, "", {}};
    std::unique_ptr<HotKeyBinder> m_binder = wayland::openBinder(m_services, m_seat);
    EvdevWorld m_world{*m_binder};
    wayland::DesktopSignals m_signals{*m_binder, m_world.evdevMonitor(),
                                      [] { return std::optional<std::uint32_t>(); }};
    bool m_capsLock = false;
};

/// Where no keyboard is open, so that only the compositor tells.
class ClosedKeyboardsTest : public KeyboardContract {
  protected:
    static constexpr HotKeyId play = 3;
    static constexpr HotKeyId stop = 2;
    static constexpr std::uint32_t controlSuper = modifier::control | modifier::command;

    void SetUp() override {
        KeyboardContract::SetUp();
        world().monitor().setRecording(false);
    }
    void strokeCombination(std::uint32_t keyCode) {
        press({key::control, key::super, keyCode});
        release({keyCode, key::super, key::control});
    }
    /// All until that one, or until nothing more has come for long.
    Log deliveredUntil(const std::string& last) {
        Log log;
        eventually([&] {
            for (std::string& line : delivered()) log.push_back(std::move(line));
            return !log.empty() && log.back() == last;
        });
        return log;
    }
};

TEST_P(ClosedKeyboardsTest, theCompositorTellsOfEachPressAndItsRelease) {
    request(play, "play", key::p, controlSuper);
    request(stop, "stop", key::f5, 0);
    strokeCombination(key::p);
    EXPECT_EQ(deliveredUntil("released 3"), (Log{"pressed 3", "released 3"}));
    tap(key::f5);
    EXPECT_EQ(deliveredUntil("released 2"), (Log{"pressed 2", "released 2"}));
}

TEST_P(ClosedKeyboardsTest, aHeldOnePressesOnce) {
    request(play, "play", key::p, controlSuper);
    press({key::control, key::super, key::p});
    EXPECT_EQ(deliveredUntil("pressed 3"), (Log{"pressed 3"}));
    // In this time it repeats where the compositor repeats it.
    EXPECT_FALSE(eventually([&] { return !delivered().empty(); }, std::chrono::milliseconds(1200)));
    release({key::p, key::super, key::control});
    EXPECT_EQ(deliveredUntil("released 3"), (Log{"released 3"}));
}

TEST_P(ClosedKeyboardsTest, oneThatIsWithdrawnIsToldNoMore) {
    request(play, "play", key::p, controlSuper);
    request(stop, "stop", key::f5, 0);
    world().hotKeys().withdraw(play);
    world().settle();
    strokeCombination(key::p);
    tap(key::f5);
    EXPECT_EQ(deliveredUntil("released 2"), (Log{"pressed 2", "released 2"}));
    request(play, "play", key::p, controlSuper);
    strokeCombination(key::p);
    EXPECT_EQ(deliveredUntil("released 3"), (Log{"pressed 3", "released 3"}));
}

template <typename Desk>
std::unique_ptr<KeyboardWorld> makeWorld() {
    return std::make_unique<CompositorWorld<Desk>>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Sway, HotKeysContract, testing::Values(&makeWorld<SwayDesk>));
INSTANTIATE_TEST_SUITE_P(Sway, ClosedKeyboardsTest, testing::Values(&makeWorld<SwayDesk>));
INSTANTIATE_TEST_SUITE_P(KWin, HotKeysContract, testing::Values(&makeWorld<KWinDesk>));
INSTANTIATE_TEST_SUITE_P(KWin, ClosedKeyboardsTest, testing::Values(&makeWorld<KWinDesk>));
