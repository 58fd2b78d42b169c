// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/EventMonitor.h"
#include "platform/WindowKeys.h"
#include "platform/fake/FakeDesktop.h"
#include "platform/fake/Journal.h"

/// Delivers what the fake keyboard tells it.
class FakeEventMonitor : public EventMonitor {
  public:
    FakeEventMonitor(Journal& journal, FakeDesktop& desktop) : m_journal(journal), m_desktop(desktop) {}

    std::optional<Error> shortcoming() const override { return lacking; }
    Result<void> showsKeys() const override { return blind ? Result<void>(*blind) : Result<void>(); }
    Result<void> install(Handler handler) override;
    void setWithheld(bool withheld) override { m_desktop.setWithheld(withheld); }
    void setKeepsOwnStrokes(bool keeps) override { m_keepsOwnStrokes = keeps; }
    void setRecording(bool recording) override;
    void setShowsModifierKeys(bool shows) override { m_showsModifierKeys = shows; }
    void observeHold(std::function<void(bool)> changed) override { m_holdChanged = std::move(changed); }

    void observeAccess(AccessObserver changed) override { m_accessChanged = std::move(changed); }
    WindowKeys* windowKeys() override { return hasWindowKeys ? &m_windowKeys : nullptr; }

    /// Whether recordings may take the keys of a window.
    bool hasWindowKeys = false;
    /// What that window has told: "begin", "press 38 0", "leave".
    const std::vector<std::string>& toldByWindow() const { return m_windowKeys.told; }

    /// What shortcoming() tells.
    std::optional<Error> lacking;
    /// Why showsKeys() says no.
    std::optional<Error> blind;

    /// The next install() answers the error and installs nothing.
    void failNextCall(const Error& error) { m_nextError = error; }

    /// A key goes down or repeats: `shape` is the mask that types its character with locks off. Not while
    /// key presses are withheld or the screen is locked.
    void reportKeyPress(KeyEvent event, std::uint32_t shape);
    void reportKeyUp(const KeyEvent& event);
    /// The held modifiers; nothing is delivered if they are as before.
    void reportModifiers(std::uint32_t held);
    /// A modifier key goes down or up, with the modifier that it holds; nothing unless modifier keys are
    /// shown. A release whose press was not delivered may be.
    void reportModifierKey(KeyEventKind kind, std::uint32_t keyCode, std::uint32_t modifier);
    /// A whole stroke of a running script.
    void reportOwnStroke(const KeyEvent& event);

    /// Another program takes the keyboard for itself, or gives it back.
    void programHoldsKeyboard(bool holds);

    /// The desktop asks the user whether keys may be seen, is answered, or ends it.
    void accessChanges(Access access, const std::optional<Error>& why = std::nullopt) {
        if (m_accessChanged) m_accessChanged(access, why);
    }

    bool isRecording() const { return m_recording; }
    bool keepsOwnStrokes() const { return m_keepsOwnStrokes; }

  private:
    struct FakeWindowKeys final : public WindowKeys {
        void begin() override { told.emplace_back("begin"); }
        void key(const WindowKey& key) override;
        void leave() override { told.emplace_back("leave"); }

        std::vector<std::string> told;
    };

    void followHold();
    void deliver(const KeyEvent& event) const;
    void deliverModifiers(std::uint32_t mask) const;

    Journal& m_journal;
    FakeDesktop& m_desktop;
    FakeWindowKeys m_windowKeys;
    Handler m_handler;
    std::function<void(bool)> m_holdChanged;
    AccessObserver m_accessChanged;
    bool m_keepsOwnStrokes = false;
    bool m_recording = false;
    bool m_showsModifierKeys = false;
    bool m_programHolds = false;
    /// As it was told.
    bool m_held = false;
    std::uint32_t m_heldModifiers = 0;
    std::optional<Error> m_nextError;
};
