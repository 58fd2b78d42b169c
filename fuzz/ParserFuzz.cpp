// SPDX-License-Identifier: MIT
//
// What can be parsed can be formatted, and what was formatted stays as it is.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/Encoding.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/syntax/Formatter.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string source = decodedText(std::string(data, data + size));
    const auto once = script::formatted(source);
    if (!once) {
        if (once.error().number == 0 || once.error().message.empty()) std::abort();
        return 0;
    }
    const auto twice = script::formatted(once.value());
    if (!twice || twice.value() != once.value()) std::abort();
    const bool compiles = bool(script::compile(source));
    if (compiles != bool(script::compile(once.value()))) std::abort();
    return 0;
}
