// SPDX-License-Identifier: MIT
#include "platform/script/code/Compiler.h"

#include <optional>
#include <utility>

#include "platform/Utf8.h"
#include "platform/script/code/CodeGenerator.h"
#include "platform/script/syntax/Hints.h"
#include "platform/script/syntax/Parser.h"

namespace script {
namespace {

Result<void, ScriptError> checkReadable(const std::string& source) {
    if (source.size() > maxSourceSize) {
        return ScriptError{errornumber::syntax, "Expected at most 16 MiB of script but found more.", {}};
    }
    const std::optional<std::size_t> invalid = invalidUtf8(source);
    if (!invalid) return {};
    return ScriptError{errornumber::syntax, "Expected text in UTF-8 but found another byte.",
                       locate(source, *invalid)};
}

}  // namespace

Result<Program, ScriptError> compile(std::string source) {
    if (auto readable = checkReadable(source); !readable) return std::move(readable).error();
    Parser parser(source);
    Tree& tree = parser.parse();
    if (parser.error()) return explained(*parser.error(), tree, source, parser.failedInsideTell());
    CodeGenerator generator(tree, source);
    Bytecode code = generator.generate();
    if (generator.error()) return *generator.error();
    code.names = std::move(tree.names);
    code.source = std::move(source);
    return Program(std::move(code));
}

}  // namespace script
