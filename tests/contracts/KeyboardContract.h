// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "contracts/KeyboardWorld.h"
#include "platform/EventMonitor.h"
#include "platform/HotKeys.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

/// Watches everything that a keyboard delivers, as one list of words in the order of delivery: "down 0 a",
/// "repeat 0 a", "up 0", "modifiers 0x200", "pressed 3", "released 3". The character stands only where it can
/// be printed.
class KeyboardContract : public testing::TestWithParam<KeyboardWorldFactory> {
  protected:
    using Log = std::vector<std::string>;

    void SetUp() override {
        m_world = GetParam()();
        ASSERT_NE(m_world, nullptr);
        const auto installed = world().monitor().install([this](const KeyEvent& event) { note(event); });
        ASSERT_TRUE(installed) << installed.error().message;
        world().hotKeys().install([this](HotKeyId id) { m_log.push_back("pressed " + std::to_string(id)); },
                                  [this](HotKeyId id) { m_log.push_back("released " + std::to_string(id)); });
        world().settle();
        m_log.clear();
    }

    KeyboardWorld& world() { return *m_world; }

    void press(std::initializer_list<std::uint32_t> keyCodes) {
        for (const std::uint32_t keyCode : keyCodes) world().press(keyCode);
    }
    void release(std::initializer_list<std::uint32_t> keyCodes) {
        for (const std::uint32_t keyCode : keyCodes) world().release(keyCode);
    }
    void tap(std::uint32_t keyCode) {
        press({keyCode});
        release({keyCode});
    }

    void request(HotKeyId id, const std::string& name, std::uint32_t keyCode, std::uint32_t modifiers) {
        world().hotKeys().request({id, name, keyCode, modifiers, false});
        world().settle();
    }
    HotKeyStatus status(HotKeyId id) { return world().hotKeys().state(id).status; }

    /// Everything that was delivered since the last call.
    Log delivered() {
        world().settle();
        return std::exchange(m_log, {});
    }

    /// The same without the events of one kind, by their first word.
    Log deliveredWithout(const std::string& kind) {
        Log log = delivered();
        std::erase_if(log, [&kind](const std::string& line) { return line.starts_with(kind); });
        return log;
    }

  private:
    void note(const KeyEvent& event) {
        std::ostringstream line;
        switch (event.kind) {
            case KeyEventKind::keyDown:
                line << "down " << event.keyCode;
                break;
            case KeyEventKind::autoRepeat:
                line << "repeat " << event.keyCode;
                break;
            case KeyEventKind::keyUp:
                line << "up " << event.keyCode;
                break;
            case KeyEventKind::modifierKeyDown:
                line << "modifier down " << event.keyCode;
                break;
            case KeyEventKind::modifierKeyUp:
                line << "modifier up " << event.keyCode;
                break;
            case KeyEventKind::modifiersChanged:
                line << "modifiers 0x" << std::hex << event.modifiers;
                break;
        }
        const bool press = event.kind == KeyEventKind::keyDown || event.kind == KeyEventKind::autoRepeat;
        if (press && event.character > ' ' && event.character <= '~') line << ' ' << event.character;
        m_log.push_back(line.str());
    }

    std::unique_ptr<KeyboardWorld> m_world;
    Log m_log;
};
