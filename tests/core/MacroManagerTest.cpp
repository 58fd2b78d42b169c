// SPDX-License-Identifier: MIT
#include "core/MacroManager.h"

#include <gtest/gtest.h>

#include "core/KeyCode.h"

namespace {

/// Each test has a manager of its own.
class MacroManagerTest : public testing::Test {
  protected:
    MacroManagerTest() { MacroManager::instance().reset(); }
    ~MacroManagerTest() override { MacroManager::instance().reset(); }
};

TEST_F(MacroManagerTest, isOneForTheProcess) {
    const auto manager = MacroManager::instance();
    ASSERT_TRUE(manager);
    EXPECT_EQ(MacroManager::instance(), manager);
    EXPECT_EQ(&MacroManager::instance(), &MacroManager::instance());
    EXPECT_EQ(manager->entryCount(), 0U);
}

TEST_F(MacroManagerTest, numbersMacrosFromOneUpAlsoWhenOneStaysEmpty) {
    const auto first = MacroManager::createMacro();
    EXPECT_EQ(first->macroId(), 1);
    EXPECT_TRUE(first->isEmpty());
    EXPECT_EQ(MacroManager::createMacro()->macroId(), 2);
    EXPECT_EQ(MacroManager::createMacro()->macroId(), 3);
}

TEST_F(MacroManagerTest, leavesAnEmptyEntryForAnUnknownNumber) {
    for (int number = 1; number <= 3; ++number) MacroManager::createMacro();
    EXPECT_FALSE(MacroManager::macro(5));
    EXPECT_EQ(MacroManager::instance()->entryCount(), 4U);
}

TEST_F(MacroManagerTest, replacesTheEmptyEntryWhenItsNumberComes) {
    EXPECT_FALSE(MacroManager::macro(1));
    const auto macro = MacroManager::createMacro();
    EXPECT_EQ(MacroManager::macro(1), macro);
    EXPECT_EQ(MacroManager::instance()->entryCount(), 1U);
}

TEST_F(MacroManagerTest, givesTheSameMacroEachTimeWithItsScript) {
    const auto macro = MacroManager::createMacro();
    const std::string script = macro->script();
    macro->addAction(createKeyCode(0, "a", 'a'));
    EXPECT_EQ(MacroManager::macro(1), macro);
    EXPECT_EQ(MacroManager::macro(1).get(), macro.get());
    EXPECT_EQ(MacroManager::macro(1)->script(), script);
}

TEST_F(MacroManagerTest, keepsMacrosThatNobodyElseHolds) {
    MacroManager::createMacro()->setScript("beep\n");
    EXPECT_EQ(MacroManager::macro(1)->script(), "beep\n");
}

TEST_F(MacroManagerTest, numbersALoadedMacroLikeARecordedOne) {
    MacroManager::createMacro()->addAction(createKeyCode(0, "a", 'a'));
    const auto loaded = MacroManager::createMacro();
    loaded->setScript("beep\n");
    EXPECT_EQ(loaded->macroId(), 2);
    EXPECT_EQ(MacroManager::macro(2)->script(), "beep\n");
}

TEST_F(MacroManagerTest, takesNegativeNumbersForUnknown) {
    EXPECT_FALSE(MacroManager::macro(-1));
    EXPECT_FALSE(MacroManager::macro(0));
    EXPECT_EQ(MacroManager::createMacro()->macroId(), 1);
}

}  // namespace
