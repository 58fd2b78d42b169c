// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "contracts/KeyboardWorld.h"
#include "display/CoreClient.h"
#include "display/Hands.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/watch/X11EventManager.h"
#include "support/XServer.h"

/// A private X server with the manager under test, and another program that presses keys.
class X11World final : public HeldKeyboardWorld {
  public:
    X11World();
    ~X11World() override;

    EventMonitor& monitor() override { return *m_manager; }
    HotKeys& hotKeys() override { return *m_manager; }
    x11::X11EventManager& manager() { return *m_manager; }
    const Hands& hands() const { return m_hands; }
    const std::string& display() const { return m_server.display(); }
    const XServer& server() const { return m_server; }

    void press(std::uint32_t keyCode) override;
    void release(std::uint32_t keyCode) override;
    void holdUntilRepeats(std::uint32_t keyCode, int atLeast) override;
    void setCapsLock(bool on) override;
    void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) override;
    void lockerTakesKeyboard() override;
    void menuTakesKeyboard() override;
    void menuStaysOpen() override;
    void keyboardIsGivenBack() override;
    void settle() override;

    /// Does what an event loop would do now.
    void turnLoop() const;

  private:
    XServer m_server;
    Hands m_hands;
    SteadyClock m_clock;
    std::unique_ptr<x11::X11EventManager> m_manager;
    std::set<std::uint32_t> m_down;
    std::vector<std::unique_ptr<CoreClient>> m_others;
    std::optional<CoreClient> m_holder;
};

/// X key code of a key code.
std::uint8_t keycodeFor(std::uint32_t keyCode);
