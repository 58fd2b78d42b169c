// SPDX-License-Identifier: MIT
//
// What the makers of the model throw when memory is short, and what they leave behind.
#include <gtest/gtest.h>

#include <functional>

#include "core/Delay.h"
#include "core/KeyCode.h"
#include "core/MacroManager.h"
#include "core/MemoryShortage.h"

namespace {

template <typename Object>
std::string errorOf(const std::function<void()>& make) {
    const MemoryShortage shortage(sizeof(Object));
    try {
        make();
    } catch (const std::runtime_error& error) {
        return error.what();
    } catch (const std::bad_alloc&) {
        return "the allocation's own";
    }
    return "none";
}

constexpr const char* outOfMemory = "Could not allocate memory.";

class ShortMemoryTest : public testing::Test {
  protected:
    ShortMemoryTest() { MacroManager::instance().reset(); }
    ~ShortMemoryTest() override { MacroManager::instance().reset(); }
};

TEST_F(ShortMemoryTest, noKeyIsMade) {
    EXPECT_EQ(errorOf<actionpack::KeyCode>([] { createKeyCode(0, "a", 'a'); }), outOfMemory);
}

TEST_F(ShortMemoryTest, noPauseIsMade) {
    EXPECT_EQ(errorOf<actionpack::Delay>([] { createDelay(1); }), outOfMemory);
}

TEST_F(ShortMemoryTest, noManagerIsMadeAndTheNextTryMakesOne) {
    EXPECT_EQ(errorOf<MacroManager>([] { MacroManager::instance(); }), outOfMemory);
    EXPECT_TRUE(MacroManager::instance());
}

TEST_F(ShortMemoryTest, noMacroIsMadeAndNoNumberIsUsedUp) {
    EXPECT_EQ(MacroManager::createMacro()->macroId(), 1);
    EXPECT_EQ(errorOf<Macro>([] { MacroManager::createMacro(); }), outOfMemory);
    EXPECT_EQ(MacroManager::instance()->entryCount(), 1U);
    EXPECT_EQ(MacroManager::createMacro()->macroId(), 2);
}

}  // namespace
