// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ParseContext.h"

namespace script {

void NestingScope::refuse() {
    m_context.tokens().expectedAtMost(ParseContext::maxDepth, "levels of nesting");
}

TellScope::TellScope(ParseContext& context) : DictionaryScope(context) {
    if (++inForce().tells <= ParseContext::maxTells) return;
    tokens().fail(errornumber::tellTooDeep, "Tell statements are nested too deeply.");
}

}  // namespace script
