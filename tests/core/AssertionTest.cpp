// SPDX-License-Identifier: MIT
// Built with NDEBUG in every build type: the assertions must not depend on it.
#include <gtest/gtest.h>

#include <boost/assert.hpp>

#include "core/KeyCode.h"
#include "core/MacroManager.h"

#ifndef NDEBUG
#error "this file shows what release builds do"
#endif

namespace {

TEST(AssertionDeathTest, stopsAScriptOfAnEmptyAction) {
    Macro macro;
    macro.addAction(boost::shared_ptr<Action>());
    EXPECT_FALSE(macro.isEmpty());
    EXPECT_EXIT((void)macro.script(), testing::KilledBySignal(SIGABRT), "px != 0");
    EXPECT_EXIT((void)macro.displayText(), testing::KilledBySignal(SIGABRT), "px != 0");
    EXPECT_EXIT((void)macro.fullDisplayText(), testing::KilledBySignal(SIGABRT), "px != 0");
}

TEST(AssertionDeathTest, stopsTheUseOfAnUnknownMacro) {
    EXPECT_EXIT((void)MacroManager::macro(99)->script(), testing::KilledBySignal(SIGABRT), "px != 0");
}

TEST(AssertionDeathTest, stopsTheResetOfAPointerToItself) {
    boost::shared_ptr<Action> action = createKeyCode(0, "a", 'a');
    EXPECT_EXIT(action.reset(action.get()), testing::KilledBySignal(SIGABRT), "p == 0 \\|\\| p != px");
}

TEST(AssertionDeathTest, saysWhereAndWhat) {
    const boost::shared_ptr<Action> empty;
    EXPECT_DEATH((void)empty->modifiers(),
                 "shared_ptr.hpp:[0-9]+: .*operator->.*: assertion failed: px != 0");
}

TEST(AssertionDeathTest, saysTheMessageOfAnAssertionThatHasOne) {
    EXPECT_EXIT(BOOST_ASSERT_MSG(1 > 2, "one is less"), testing::KilledBySignal(SIGABRT),
                "AssertionTest.cpp:[0-9]+: .*TestBody.*: assertion failed: 1 > 2 \\(one is less\\)");
}

}  // namespace
