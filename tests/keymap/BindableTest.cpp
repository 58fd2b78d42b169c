// SPDX-License-Identifier: MIT
#include "platform/keymap/Bindable.h"

#include <gtest/gtest.h>

namespace {

TEST(BindableTest, controlCharactersCannotBePutOnKeys) {
    EXPECT_TRUE(isBindable(U'é'));
    EXPECT_TRUE(isBindable(U'😀'));
    for (const char32_t character : {U'\x01', U'\r', U'\x7F'}) EXPECT_FALSE(isBindable(character));
    EXPECT_FALSE(isBindable(0x85));
}

}  // namespace
