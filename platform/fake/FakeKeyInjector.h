// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/KeyInjector.h"
#include "platform/fake/FakeClock.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/FakeKeyboard.h"
#include "platform/fake/Journal.h"

/// Writes down what is pressed instead of pressing it.
class FakeKeyInjector : public KeyInjector {
  public:
    FakeKeyInjector(Journal& journal, FakeDesktop& desktop, FakeKeyboard& keyboard, FakeClock& clock)
        : m_journal(journal), m_desktop(desktop), m_keyboard(keyboard), m_clock(clock) {}

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override { m_desktop.startPlayback(); }
    bool isCancelled() override { return m_desktop.isCancelled(); }
    void stopPlayback() override { m_desktop.cancelPlayback(); }
    void rest() override { post("rest"); }

    /// Everything that was pressed, one step each: "key 36 command shift", "text hello", "down shift",
    /// "up 36", "pause 0.5", "rest". Modifiers come in the order command, control, option, shift.
    const std::vector<std::string>& postedKeys() const { return m_posted; }
    /// The next open() or the next step answers the error.
    void failNextCall(const Error& error) { m_nextError = error; }
    /// The user asks to stop the playback.
    void userCancels() { m_desktop.cancelPlayback(); }

  private:
    class Session;

    void post(const std::string& step);

    Journal& m_journal;
    FakeDesktop& m_desktop;
    FakeKeyboard& m_keyboard;
    FakeClock& m_clock;
    std::vector<std::string> m_posted;
    std::optional<Error> m_nextError;
    bool m_open = false;
};
