// SPDX-License-Identifier: MIT
//
// Scripts that somebody else may have written, cut off and damaged: each compiles or is refused, at once.
#include <gtest/gtest.h>

#include "platform/script/code/Compiler.h"
#include "script/Traced.h"

namespace {

const std::string sample =
    R"(-- a macro
(* with (* all *) *)
tell the application "System Events"
	key code (36) using {}
delay 0.01
	key code {1, 2.5e0} ¬
	using {command down, shift}
	keystroke "h\"é" & return & 3 div 2
	repeat 2 times
		key down {"w", 49}
		exit repeat
	end repeat
	tell process |a b| to delay -1 + 2 * (3 ^ 2)
end tell
)";

/// Compiles or is refused with a message and a place within the source.
void expectAnAnswer(const std::string& source) {
    const auto compiled = script::compile(source);
    if (compiled) return;
    const script::ScriptError& error = compiled.error();
    EXPECT_NE(error.number, 0) << source;
    EXPECT_FALSE(error.message.empty()) << source;
    EXPECT_GE(error.location.line, 1U);
}

TEST(RobustnessTest, theSampleItselfCompiles) {
    const auto compiled = script::compile(sample);
    EXPECT_TRUE(compiled) << compiled.error().message;
}

TEST(RobustnessTest, everyBeginningOfAScriptGetsAnAnswer) {
    for (std::size_t length = 0; length < sample.size(); ++length) expectAnAnswer(sample.substr(0, length));
}

TEST(RobustnessTest, everyEndOfAScriptGetsAnAnswer) {
    for (std::size_t start = 0; start < sample.size(); ++start) expectAnAnswer(sample.substr(start));
}

TEST(RobustnessTest, everyDamagedByteGetsAnAnswer) {
    for (std::size_t position = 0; position < sample.size(); ++position) {
        for (const char replacement : std::string("\0\n\"\\|(){}*-.e9a¬\xFF", 18)) {
            std::string damaged = sample;
            damaged[position] = replacement;
            expectAnAnswer(damaged);
        }
    }
}

TEST(RobustnessTest, everyMissingByteGetsAnAnswer) {
    for (std::size_t position = 0; position < sample.size(); ++position) {
        expectAnAnswer(sample.substr(0, position) + sample.substr(position + 1));
    }
}

}  // namespace
