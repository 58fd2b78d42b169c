// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/Keys.h"
#include "x11/watch/X11World.h"

/// A world, and all that its manager delivers, in words: "down 0 a 0x200" with the mask in force, "repeat 0 a
/// 0x0", "up 0", "mask 0x200", "pressed 2", "released 2".
class X11Test : public testing::Test {
  protected:
    using Log = std::vector<std::string>;

    X11Test();

    X11World& world() { return m_world; }
    const Hands& hands() const { return m_world.hands(); }

    /// Everything since the last call, all that was done by now included.
    Log delivered();
    /// The same, only lines that begin so.
    Log delivered(const std::string& beginning);
    /// The event loop turns until the condition holds; false at the deadline.
    bool loopUntil(const std::function<bool()>& condition);
    const Log& log() const { return m_log; }
    int count(const std::string& line) const;

    /// Ctrl+Super+key under an id.
    HotKeyState request(HotKeyId id, const std::string& name, std::uint32_t keyCode);

    /// Called with each line as it is delivered.
    std::function<void(const std::string&)> onLine;

  private:
    void note(const std::string& line);

    X11World m_world;
    Log m_log;
};

/// A key event in the words above.
std::string wordsFor(const KeyEvent& event);
