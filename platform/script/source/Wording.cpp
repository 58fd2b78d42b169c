// SPDX-License-Identifier: MIT
#include "platform/script/source/Wording.h"

#include <utility>

#include "platform/Utf8.h"

namespace script {

std::string shortened(std::string_view text, std::size_t most) {
    if (text.size() <= most) return std::string(text);
    std::size_t end = most;
    while (isUtf8Continuation(text[end])) --end;
    return std::string(text.substr(0, end)) + "…";
}

Sentence quoted(std::string_view text) {
    //: %1 is a word of the script language.
    return sentence("ScriptErrors", "“%1”").arg(shortened(text));
}

Sentence alternatives(const std::vector<std::string_view>& words) {
    Sentence all = quoted(words.front());
    for (std::size_t i = 1; i < words.size(); ++i) {
        const bool isLast = i + 1 == words.size();
        all = (isLast ? sentence("ScriptErrors", "%1 or %2") : sentence("ScriptErrors", "%1, %2"))
                  .arg(std::move(all))
                  .arg(quoted(words[i]));
    }
    return all;
}

Sentence expectedButFound(Sentence what, Sentence other) {
    //: %1 and %2 are words of the script language in quotes, or "expression", "end of line" and others below.
    return sentence("ScriptErrors", "Expected %1 but found %2.").arg(std::move(what)).arg(std::move(other));
}

Sentence parameterTwice(std::string_view name) {
    return sentence("ScriptErrors", "The %1 parameter is specified more than once.").arg(shortened(name));
}

Sentence propertyTwice(std::string_view name) {
    return sentence("ScriptErrors", "The %1 property is specified more than once.").arg(shortened(name));
}

Sentence handlerTwice(std::string_view name) {
    return sentence("ScriptErrors", "The %1 handler is specified more than once.").arg(shortened(name));
}

Sentence gotAnError(std::string_view who, Sentence what) {
    return sentence("ScriptErrors", "%1 got an error: %2").arg(shortened(who)).arg(std::move(what));
}

}  // namespace script
