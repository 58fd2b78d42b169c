// SPDX-License-Identifier: MIT
//
// What can be parsed can be formatted, and what was formatted stays as it is.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <variant>

#include "platform/Encoding.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/syntax/Formatter.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string source = decodedText(std::string(data, data + size));
    const auto once = script::formatted(source);
    const auto* text = std::get_if<std::string>(&once);
    if (text == nullptr) {
        const auto& error = std::get<script::ScriptError>(once);
        if (error.number == 0 || error.message.empty()) std::abort();
        return 0;
    }
    const auto twice = script::formatted(*text);
    const auto* again = std::get_if<std::string>(&twice);
    if (again == nullptr || *again != *text) std::abort();
    const bool compiles = std::holds_alternative<script::Program>(script::compile(source));
    if (compiles != std::holds_alternative<script::Program>(script::compile(*text))) std::abort();
    return 0;
}
