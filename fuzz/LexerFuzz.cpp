// SPDX-License-Identifier: MIT
//
// Tokens lie within the source, one behind the other, and come to an end.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/Encoding.h"
#include "platform/script/source/Lexer.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string source = decodedText(std::string(data, data + size));
    script::Lexer lexer(source);
    const char* end = source.data();
    for (std::size_t count = 0; count <= source.size() + 1; ++count) {
        const script::Token token = lexer.next();
        if (token.text.data() < end ||
            token.text.data() + token.text.size() > source.data() + source.size()) {
            std::abort();
        }
        end = token.text.data() + token.text.size();
        if (token.is(script::TokenKind::endOfScript)) return 0;
    }
    std::abort();
}
