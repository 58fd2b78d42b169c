// SPDX-License-Identifier: MIT
#include "core/Macro.h"

#include <malloc.h>

#include <vector>

#include "LocaleTest.h"
#include "core/Delay.h"
#include "core/KeyCode.h"
#include "core/createShared.h"
#include "support/RecordedExample.h"

#ifdef __SANITIZE_ADDRESS__
// The sanitizer has it, but GCC comes without the header.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

/// Bytes of this process; the sanitizer has an allocator of its own.
std::size_t allocated() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    return mallinfo2().uordblks;
#endif
}

class MacroTest : public LocaleTest {
  protected:
    /// Appends plain key presses with the names "1,", "2,", ...
    void addNumbered(int count) {
        for (int number = 1; number <= count; ++number) {
            macro.addAction(createKeyCode(0, std::to_string(number) + ",", 'a'));
        }
    }

    void addExample() {
        const auto press = createKeyCode(1, "s", 's');
        press->setModifiers(0x0100);
        macro.addAction(press);
        macro.addAction(createDelay(0.5));
        macro.addAction(createKeyCode(0, "a", 'a'));
    }

    Macro macro;
};
KEYRILL_IN_BOTH_LOCALES(MacroTest);

TEST_P(MacroTest, startsEmptyAndWithoutANumber) {
    EXPECT_TRUE(macro.isEmpty());
    EXPECT_EQ(macro.macroId(), 0);
    EXPECT_EQ(macro.displayText(), "");
    EXPECT_EQ(macro.fullDisplayText(), "");
}

TEST_P(MacroTest, writesEachActionAndAPauseAfterIt) {
    addExample();
    EXPECT_FALSE(macro.isEmpty());
    EXPECT_EQ(macro.script(), recordedexample::script);
}

TEST_P(MacroTest, showsAllActionsWithNothingBetween) {
    addExample();
    EXPECT_EQ(macro.displayText(), "<⌘+s><⌛ 0.50>a");
    EXPECT_EQ(macro.fullDisplayText(), "<⌘+s><⌛ 0.50>a");
}

TEST_P(MacroTest, aFewKeysTakeLittleMemory) {
    constexpr std::size_t macros = 100;
    const std::size_t before = allocated();
    std::vector<Macro> history(macros);
    for (Macro& one : history) one.addAction(createKeyCode(0, "a", 'a'));
    const std::size_t taken = allocated() - before;
    EXPECT_GE(taken, macros * sizeof(Macro)) << "it is not counted";
    EXPECT_LT(taken / macros, 1024U);
}

TEST_P(MacroTest, hasAScriptWithoutActionsToo) {
    EXPECT_EQ(macro.script(), R"(tell application "System Events"
end tell
)");
}

TEST_P(MacroTest, keepsItsFirstScriptForGood) {
    addExample();
    ASSERT_EQ(macro.script(), recordedexample::script);
    addNumbered(1);
    EXPECT_EQ(macro.script(), recordedexample::script);
}

TEST_P(MacroTest, keepsTheScriptOfNoActionsToo) {
    const std::string first = macro.script();
    addNumbered(1);
    EXPECT_EQ(macro.script(), first);
}

TEST_P(MacroTest, givesALoadedTextBackAsItStands) {
    macro.setScript(R"(keystroke "x")");
    EXPECT_TRUE(macro.isEmpty());
    EXPECT_EQ(macro.displayText(), "");
    EXPECT_EQ(macro.fullDisplayText(), "");
    EXPECT_EQ(macro.script(), R"(keystroke "x")");
}

TEST_P(MacroTest, prefersALoadedTextToItsActions) {
    addExample();
    macro.setScript("beep\n");
    EXPECT_EQ(macro.script(), "beep\n");
    EXPECT_EQ(macro.displayText(), "<⌘+s><⌛ 0.50>a");
}

TEST_P(MacroTest, buildsItsScriptAfreshAfterAnEmptyText) {
    EXPECT_EQ(macro.script(), R"(tell application "System Events"
end tell
)");
    addExample();
    macro.setScript("");
    EXPECT_EQ(macro.script(), recordedexample::script);
}

TEST_P(MacroTest, showsTwentyActionsWhole) {
    addNumbered(20);
    EXPECT_EQ(macro.displayText(), "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,");
}

TEST_P(MacroTest, leavesTheEleventhOfTwentyOneOut) {
    addNumbered(21);
    EXPECT_EQ(macro.displayText(), "1,2,3,4,5,6,7,8,9,10,...12,13,14,15,16,17,18,19,20,21,");
}

TEST_P(MacroTest, showsTheEdgesOfManyActions) {
    addNumbered(1000);
    EXPECT_EQ(macro.displayText(), "1,2,3,4,5,6,7,8,9,10,...991,992,993,994,995,996,997,998,999,1000,");
}

TEST_P(MacroTest, showsManyActionsWholeInTheFullText) {
    addNumbered(21);
    EXPECT_EQ(macro.fullDisplayText(), "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,");
}

TEST_P(MacroTest, takesANumber) {
    macro.setMacroId(7);
    EXPECT_EQ(macro.macroId(), 7);
}

/// An action that counts how often its texts are asked for.
class CountingAction : public Action {
  public:
    explicit CountingAction(int& renderings) : m_renderings(renderings) {}
    std::string scriptLine() const override { return ++m_renderings, "\tbeep\n"; }
    std::string displayText() const override { return ++m_renderings, "x"; }

  private:
    int& m_renderings;
};

class MacroCostTest : public testing::Test {
  protected:
    void add(int count) {
        for (int n = 0; n < count; ++n) macro.addAction(createShared<CountingAction>(renderings));
    }

    int renderings = 0;
    Macro macro;
};

TEST_F(MacroCostTest, rendersNothingWhenAnActionIsAdded) {
    add(100);
    EXPECT_EQ(renderings, 0);
}

TEST_F(MacroCostTest, rendersEachActionOnceForTheFullText) {
    add(1);
    EXPECT_EQ(macro.fullDisplayText(), "x");
    add(2);
    EXPECT_EQ(macro.fullDisplayText(), "xxx");
    EXPECT_EQ(macro.fullDisplayText(), "xxx");
    EXPECT_EQ(renderings, 3);
}

TEST_F(MacroCostTest, rendersOnlyTheTwentyActionsThatTheMenuShows) {
    add(100);
    EXPECT_EQ(macro.displayText(), "xxxxxxxxxx...xxxxxxxxxx");
    EXPECT_EQ(renderings, 20);
}

TEST_F(MacroCostTest, rendersTheScriptOnce) {
    add(3);
    EXPECT_EQ(macro.script(), macro.script());
    EXPECT_EQ(renderings, 3);
}

TEST(MacroLifeTest, releasesItsActions) {
    const boost::shared_ptr<Action> action = createDelay(1);
    {
        Macro macro;
        macro.addAction(action);
        EXPECT_EQ(action.use_count(), 2);
    }
    EXPECT_EQ(action.use_count(), 1);
}

}  // namespace
