// SPDX-License-Identifier: MIT
#include "platform/fake/FakeKeyboardLayout.h"

#include "contracts/KeyboardLayoutContract.h"

namespace {

class FakeKeyboardLayoutWorld : public KeyboardLayoutWorld {
  public:
    KeyboardLayout& layout() override { return m_layout; }

  private:
    FakeKeyboardLayout m_layout;
};

std::unique_ptr<KeyboardLayoutWorld> makeWorld() { return std::make_unique<FakeKeyboardLayoutWorld>(); }

INSTANTIATE_TEST_SUITE_P(Fake, KeyboardLayoutContract, testing::Values(&makeWorld));

TEST(FakeKeyboardLayoutTest, countsHowOftenANameIsAskedFor) {
    const FakeKeyboardLayout layout;
    layout.keyName(0);
    layout.keyName(0);
    EXPECT_EQ(layout.lookups(), 2);
}

TEST(FakeKeyboardLayoutTest, callsAKeyWhatTheTestCallsIt) {
    FakeKeyboardLayout layout;
    layout.renameKey(0, "Ж");
    EXPECT_EQ(layout.keyName(0), "Ж");
}

TEST(FakeKeyboardLayoutTest, failsOnceWhenToldTo) {
    FakeKeyboardLayout layout;
    const Error unreadable{"The layout cannot be read.", ""};
    layout.failNextCall(unreadable);
    EXPECT_EQ(layout.character(0, false, false).error(), unreadable);
    EXPECT_TRUE(layout.character(0, false, false));
}

}  // namespace
