// SPDX-License-Identifier: MIT
#include "platform/x11/windows/EwmhFocus.h"

#include <gtest/gtest.h>

#include "support/Terminal.h"
#include "support/XServer.h"

namespace x11 {
namespace {

std::uint32_t numberOf(const Terminal& terminal) {
    return static_cast<std::uint32_t>(std::stoul(terminal.window()));
}

/// Under a window manager.
class EwmhFocusTest : public testing::Test {
  protected:
    EwmhFocusTest() {
        const auto manages = [this] {
            return outputOf({"xprop", "-display", server.display(), "-root", "_NET_SUPPORTING_WM_CHECK"})
                       .find("window id") != std::string::npos;
        };
        if (!eventually(manages)) throw std::runtime_error("there is no window manager");
    }
    bool becomesFocused(std::uint32_t window) {
        return eventually([&] { return !focus.isElsewhere({.id = window}); });
    }

    XServer server;
    Child manager{{"openbox"}, {.environment = {{"DISPLAY", server.display()}}, .outputFile = "/dev/null"}};
    EwmhFocus focus{XConnection::open(server.display()).value()};
};

TEST_F(EwmhFocusTest, givesTheFocusToAnotherProgramsWindowAndTellsWhichHasIt) {
    const Terminal first(server.display());
    const Terminal second(server.display());
    ASSERT_TRUE(becomesFocused(numberOf(second)));
    ASSERT_TRUE(focus.focus({.id = numberOf(first)}));
    EXPECT_TRUE(becomesFocused(numberOf(first)));
    EXPECT_TRUE(eventually([&] { return first.hasFocus(); }));
    EXPECT_TRUE(focus.isElsewhere({.id = numberOf(second)}));
}

TEST_F(EwmhFocusTest, aWindowThatIsNotOnTheScreenCannotHaveIt) {
    constexpr std::uint32_t noWindow = 1;
    const auto given = focus.focus({.id = noWindow});
    ASSERT_FALSE(given);
    EXPECT_EQ(given.error().message, "The window is not on the screen.");
}

TEST_F(EwmhFocusTest, itIsElsewhereWhereNoWindowOfTheServersHasIt) {
    constexpr std::uint32_t hidden = 1;
    EXPECT_TRUE(focus.isElsewhere({.id = hidden}));
    EXPECT_TRUE(focus.isElsewhere({}));
}

}  // namespace
}  // namespace x11
