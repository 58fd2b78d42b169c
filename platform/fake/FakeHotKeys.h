// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "platform/HotKeys.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/Journal.h"

/// Hot keys on the fake keyboard; answers at once.
class FakeHotKeys : public HotKeys {
  public:
    FakeHotKeys(Journal& journal, FakeDesktop& desktop, const Clock& clock)
        : m_journal(journal), m_desktop(desktop), m_clock(clock) {}

    void install(Handler pressed, Handler released) override;
    void observe(Observer observer) override { m_observer = std::move(observer); }
    void request(const HotKeyRequest& request) override;
    void withdraw(HotKeyId id) override;
    HotKeyState state(HotKeyId id) const override;
    std::uint32_t lastPressTime() const override { return m_lastPressTime; }

    bool needsConsent() const override { return m_needsConsent; }
    void setConsent(bool given) override;

    /// The desktop has hot keys only in its user's settings.
    void requireConsent() { m_needsConsent = true; }
    bool hasConsent() const { return m_hasConsent; }
    /// Another program registers the combination; requests for it are refused from now on.
    void otherProgramHolds(std::uint32_t keyCode, std::uint32_t modifiers);
    /// The desktop's settings have another combination for a hot key that is registered, in its words.
    void desktopChanges(HotKeyId id, const std::string& trigger);
    /// The next request is refused with the error.
    void failNextCall(const Error& error) { m_nextError = error; }
    /// What is registered, by id: key code and modifiers as asked for.
    std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>> registered() const;

    /// The user presses a key that was up: whether a hot key, ours or another program's, takes it.
    bool takesPress(std::uint32_t keyCode, std::uint32_t heldModifiers);
    /// The user releases a key: whether its press was taken.
    bool takesRelease(std::uint32_t keyCode);
    /// Whether the press of the key that is down was taken, and its repeats with it.
    bool holds(std::uint32_t keyCode) const { return m_held.contains(keyCode); }

  private:
    using Combination = std::pair<std::uint32_t, std::uint32_t>;
    struct Row {
        HotKeyRequest request;
        HotKeyState state;
    };

    HotKeyState answer(const HotKeyRequest& request);
    const Row* holderOf(const Combination& combination) const;
    void fire(const Row& row);
    void post(const HotKeyRequest& request, FakeDesktop::Delivery delivery);

    Journal& m_journal;
    FakeDesktop& m_desktop;
    const Clock& m_clock;
    Handler m_pressed;
    Handler m_released;
    Observer m_observer;
    std::map<HotKeyId, Row> m_rows;
    std::set<Combination> m_foreign;
    /// Keys that are down by a taken press; the id is empty for another program's.
    std::map<std::uint32_t, std::optional<HotKeyId>> m_held;
    std::uint32_t m_lastPressTime = 0;
    std::optional<Error> m_nextError;
    bool m_needsConsent = false;
    bool m_hasConsent = false;
};
