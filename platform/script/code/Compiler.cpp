// SPDX-License-Identifier: MIT
#include "platform/script/code/Compiler.h"

#include <utility>

#include "platform/script/code/CodeGenerator.h"
#include "platform/script/syntax/Hints.h"
#include "platform/script/syntax/Parser.h"
#include "platform/script/syntax/Readable.h"

namespace script {

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
