// SPDX-License-Identifier: MIT
#include "platform/script/code/Compiler.h"

#include <gtest/gtest.h>

namespace {

script::ScriptError errorOf(std::string source) {
    const auto compiled = script::compile(std::move(source));
    return compiled ? script::ScriptError{} : compiled.error();
}

TEST(CompilerTest, sourcesAreBounded) {
    const std::string comment = "#" + std::string(script::maxSourceSize - 1, 'x');
    EXPECT_EQ(errorOf(comment), script::ScriptError{});
    EXPECT_EQ(errorOf(comment + "x"),
              (script::ScriptError{-2741, "Expected at most 16 MiB of script but found more.", {1, 1}}));
}

TEST(CompilerTest, bytesThatAreNoTextAreAnError) {
    EXPECT_EQ(errorOf("delay 1\n\"a\xFF\""),
              (script::ScriptError{-2741, "Expected text in UTF-8 but found another byte.", {2, 3}}));
}

TEST(CompilerTest, aProgramIsOnItsOwn) {
    std::string source = "tell app \"System Events\"\nkeystroke \"é\" & \"b\\n\"\nkey down \"w\"\nend";
    auto compiled = script::compile(source);
    source.assign(source.size(), 'x');
    const auto program = std::move(compiled).value();
    EXPECT_EQ(program.typedTexts(), (std::vector<std::string>{"é", "b\n", "w"}));
}

}  // namespace
