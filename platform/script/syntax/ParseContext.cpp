// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ParseContext.h"

#include "platform/Sentence.h"

namespace script {

void NestingScope::refuse() {
    m_context.tokens().fail(errornumber::syntax,
                            sentence("ScriptErrors", "Expected at most %1 levels of nesting but found more.")
                                .arg(std::to_string(ParseContext::maxDepth)));
}

TellScope::TellScope(ParseContext& context) : DictionaryScope(context) {
    if (++inForce().tells <= ParseContext::maxTells) return;
    tokens().fail(errornumber::tellTooDeep,
                  sentence("ScriptErrors", "Tell statements are nested too deeply."));
}

}  // namespace script
