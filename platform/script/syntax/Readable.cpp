// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Readable.h"

#include <optional>

#include "platform/ScriptingService.h"
#include "platform/Sentence.h"
#include "platform/Utf8.h"

namespace script {

Result<void, ScriptError> checkReadable(std::string_view source) {
    if (source.size() > largestScript) {
        return ScriptError{errornumber::syntax,
                           sentence("ScriptErrors", "Expected at most 16 MiB of script but found more."),
                           {}};
    }
    const std::optional<std::size_t> invalid = invalidUtf8(source);
    if (!invalid) return {};
    return ScriptError{errornumber::syntax,
                       sentence("ScriptErrors", "Expected text in UTF-8 but found another byte."),
                       locate(source, *invalid)};
}

}  // namespace script
