// SPDX-License-Identifier: MIT
#include "platform/TerminalText.h"

#include "platform/Utf8.h"

namespace {

constexpr bool actsOnTerminal(std::uint32_t code) {
    const bool isMeant = code == '\t' || code == '\n';
    return isControlCode(code) && !isMeant;
}

/// An embedding or an override, which stands for all that follows in the line.
constexpr bool turnsLine(std::uint32_t code) { return code >= 0x202A && code <= 0x202E; }

}  // namespace

std::string harmlessText(std::string_view text) {
    std::string harmless;
    harmless.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        // A byte that is no character would be one of the control characters beyond ASCII to some.
        if (!character.code || actsOnTerminal(*character.code) || turnsLine(*character.code)) {
            harmless += ' ';
        } else {
            harmless += text.substr(0, character.length);
        }
        text.remove_prefix(character.length);
    }
    return harmless;
}
