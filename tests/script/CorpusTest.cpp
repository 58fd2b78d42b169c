// SPDX-License-Identifier: MIT
//
// The scripts that fuzzing starts from and those that it found: each gets an answer.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/Encoding.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/syntax/Formatter.h"
#include "script/RecordingInjector.h"
#include "support/Child.h"

namespace {

/// A run that goes on for long is stopped.
void runBounded(const script::Program& program) {
    int asked = 0;
    RecordingInjector injector;
    injector.whenAsked = [&] { injector.cancelled = ++asked > 5; };
    injector.duringEachStep = [&] { injector.cancelled = injector.calls.size() > 1000; };
    script::SilentDesktop desktop;
    script::NoDialogs dialogs;
    const script::RunResult result = script::run(program, {injector, desktop, dialogs});
    if (result.error) {
        EXPECT_NE(result.error->number, 0);
    }
}

void expectAnAnswer(const std::string& bytes) {
    const std::string source = decodedText(bytes);
    const auto compiled = script::compile(source);
    if (compiled) return runBounded(compiled.value());
    EXPECT_NE(compiled.error().number, 0);
}

void expectALayoutThatStays(const std::string& bytes) {
    const auto once = script::formatted(decodedText(bytes));
    if (!once) return;
    EXPECT_EQ(script::formatted(once.value()).value(), once.value());
}

/// How many there are.
int expectAnswersFor(const std::filesystem::path& folder) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path());
        const std::string bytes = contentOf(entry.path());
        expectAnAnswer(bytes);
        expectALayoutThatStays(bytes);
        ++count;
    }
    return count;
}

// As many as were kept: one that is lost is not noticed otherwise.
TEST(CorpusTest, everySeedGetsAnAnswerAndKeepsItsLayout) {
    EXPECT_GE(expectAnswersFor(FUZZ_FOLDER "/seeds"), 4);
}

TEST(CorpusTest, everyScriptThatFuzzingFoundGetsAnAnswerAndKeepsItsLayout) {
    EXPECT_GE(expectAnswersFor(FUZZ_FOLDER "/corpus"), 103);
}

}  // namespace
