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

/// Isolates stand until their end, or to the end of the line.
constexpr bool beginsIsolate(std::uint32_t code) { return code >= 0x2066 && code <= 0x2068; }
constexpr std::uint32_t endOfIsolate = 0x2069;
constexpr const char* endsIsolate = "\u2069";

}  // namespace

std::string harmlessText(std::string_view text) {
    std::string harmless;
    harmless.reserve(text.size());
    std::size_t isolates = 0;
    const auto endIsolates = [&] {
        for (; isolates > 0; --isolates) harmless += endsIsolate;
    };
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        // A byte that is no character would be one of the control characters beyond ASCII to some.
        const std::uint32_t code = character.code.value_or(0);
        if (code == '\n') endIsolates();
        const bool endsNothing = code == endOfIsolate && isolates == 0;
        if (actsOnTerminal(code) || turnsLine(code) || endsNothing) {
            harmless += ' ';
        } else {
            harmless += text.substr(0, character.length);
        }
        if (beginsIsolate(code)) ++isolates;
        if (code == endOfIsolate && !endsNothing) --isolates;
        text.remove_prefix(character.length);
    }
    endIsolates();
    return harmless;
}
