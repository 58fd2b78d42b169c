// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

class LongMacroTest : public DesktopTest {
  protected:
    Terminal terminal{desktop.display()};
    Keyrill keyrill{desktop};
    Hands hands{desktop.display()};
};

TEST_F(LongMacroTest, aMacroOfTwentyThousandKeysArrivesWhole) {
    record();
    constexpr std::size_t count = 20'000;
    for (std::size_t i = 0; i < count; ++i) hands.tap(static_cast<std::uint8_t>(xkey::a + i % 9));
    hands.finish();
    const std::string typed = terminal.typed(count, std::chrono::seconds(60));
    stop();
    play();
    // Each key is followed by a pause of 10 ms.
    EXPECT_TRUE(terminal.typed(2 * count, std::chrono::seconds(400)) == typed + typed);
}

}  // namespace
