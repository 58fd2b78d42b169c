// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string_view>

#include "engine/EngineTest.h"
#include "engine/FakeController.h"
#include "engine/HotKeyCenter.h"
#include "prefs/Settings.h"
#include "support/Keys.h"

/// Somebody at the keyboard.
class User {
  public:
    explicit User(FakePlatform& platform) : m_platform(platform) {}

    /// One after the other; they stay down.
    template <typename... Keys>
    void presses(Keys... keys) {
        (m_platform.keyboard.userPresses(keys), ...);
    }
    template <typename... Keys>
    void releases(Keys... keys) {
        (m_platform.keyboard.userReleases(keys), ...);
    }
    /// All down, then all up in the opposite order.
    void strikes(std::initializer_list<std::uint32_t> keys) {
        for (const std::uint32_t key : keys) presses(key);
        for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) releases(*key);
    }
    void holds(std::uint32_t key, int repeats) { m_platform.keyboard.userHolds(key, repeats); }
    /// Small letters, digits, spaces, line ends.
    void types(std::string_view text) {
        constexpr std::string_view keys = "asdfhgzxcv_bqweryt123465=97-80]ou[ip\nlj'k;\\,/nm.\t ";
        for (const char character : text) {
            const std::size_t key = keys.find(character);
            ASSERT_NE(key, std::string_view::npos) << character;
            strikes({static_cast<std::uint32_t>(key)});
        }
    }
    void waits(double seconds) { m_platform.clock.advance(Clock::Seconds(seconds)); }

    // The preset combinations.
    void strikesRecord() { strikes({key::control, key::super, key::r}); }
    void strikesStop() { strikes({key::control, key::super, key::s}); }
    void strikesPlay() { strikes({key::control, key::super, key::p}); }
    void strikesMultiplePlay() { strikes({key::control, key::super, key::m}); }

  private:
    FakePlatform& m_platform;
};

/// What the status menu does.
class Menu {
  public:
    explicit Menu(FakePlatform& platform) : m_platform(platform) {}

    void records() { choose(toggleRecording); }
    void stops() { choose(stopRecording); }
    void plays() {
        choose([] { playTimes(1); });
    }
    void asksForMultiplePlay() { choose(promptMultiplePlay); }
    void savesPause() { choose(saveDelayToNow); }

  private:
    template <typename Command>
    void choose(Command command) {
        command();
        m_platform.desktop.turnLoop();
    }

    FakePlatform& m_platform;
};

/// The multiple-play prompt.
class Prompt {
  public:
    explicit Prompt(FakePlatform& platform) : m_platform(platform) {}

    void isConfirmedWith(std::string_view text) {
        playTimes(playCountFromText(text));
        m_platform.desktop.turnLoop();
    }

  private:
    FakePlatform& m_platform;
};

/// The engine as start-up leaves it, with the preset hot keys, and a user.
class Scenario : public EngineTest {
  protected:
    Scenario() {
        for (const ShortcutRow& row : shortcutRows) ::setHotKey(std::string(row.name), row.preset);
        installHotKeyHandlers();
        installKeyRecorder();
    }

    /// Records the typed text by the hot keys; it is the current macro afterwards.
    void recordTyping(std::string_view text) {
        user.strikesRecord();
        user.types(text);
        user.strikesStop();
    }

    std::size_t scriptsRun() const { return runs().size(); }
    /// What the user sees of the macro in the overlay.
    const std::string& overlay() const { return gui.overlayText(); }
    bool isRecording() { return state().recording; }
    std::string currentMacro() { return state().currentMacro ? state().currentMacro->displayText() : "none"; }

    FakeController gui{platform().journal};
    User user{platform()};
    Menu menu{platform()};
    Prompt prompt{platform()};

  private:
    SharedControllerScope m_scope{gui};
};
