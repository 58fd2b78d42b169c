// SPDX-License-Identifier: MIT
#include "library/steps/TypingKeys.h"

#include <unordered_map>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/KeyboardLayout.h"
#include "platform/Modifiers.h"
#include "platform/Sentence.h"
#include "platform/Utf8.h"

namespace steps {
namespace {

constexpr std::uint32_t returnKey = 36;
constexpr std::uint32_t tabKey = 48;
/// Of the keys above, those of a keyboard's main block, which people type texts with.
constexpr std::uint32_t lastOfMainBlock = 50;

struct TypingKey {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
};

/// Which key types each character. Of several the one with fewer fingers comes first, then the one in the
/// main block.
class TypingTable {
  public:
    explicit TypingTable(const KeyboardLayout& layout) {
        for (const std::uint32_t choosers :
             {0U, keycode::thirdLevel, keycode::fifthLevel, keycode::choosers}) {
            for (const std::uint32_t modifiers : {0U, modifier::shift}) addLevel(layout, choosers, modifiers);
        }
        m_keys.insert_or_assign(U'\n', TypingKey{returnKey});
        m_keys.insert_or_assign(U'\r', TypingKey{returnKey});
        m_keys.insert_or_assign(U'\t', TypingKey{tabKey});
    }

    std::optional<TypingKey> find(char32_t character) const {
        const auto found = m_keys.find(character);
        return found == m_keys.end() ? std::nullopt : std::optional(found->second);
    }

  private:
    void addLevel(const KeyboardLayout& layout, std::uint32_t choosers, std::uint32_t modifiers) {
        for (const keycode::Row& row : keycode::rows()) {
            if (row.code > keycode::power) break;
            const std::string text = layout.typed(row.code | choosers, modifiers != 0);
            if (text.empty()) continue;
            const Utf8Character typed = firstCharacter(text);
            if (typed.length != text.size() || !typed.code) continue;
            add(*typed.code, {row.code | choosers, modifiers});
        }
    }

    void add(char32_t character, TypingKey key) {
        const auto [place, isNew] = m_keys.try_emplace(character, key);
        const bool isMain = keycode::baseOf(key.keyCode) <= lastOfMainBlock;
        const bool wasMain = keycode::baseOf(place->second.keyCode) <= lastOfMainBlock;
        if (!isNew && isMain && !wasMain) place->second = key;
    }

    std::unordered_map<char32_t, TypingKey> m_keys;
};

Error noKeyTypes(char32_t character) {
    std::string shown;
    appendUtf8(shown, character);
    //: %1 is a character.
    return {sentence("Layouts", "No key of the present keyboard layout types \"%1\".").arg(shown),
            sentence("Layouts", "Convert the keys to text, which types any character.")};
}

Result<std::string> keyLinesOf(const TypingTable& table, std::string_view text) {
    std::string lines;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = takeCharacter(text, position);
        // The two together are one Return.
        if (character == U'\r' && text.substr(position).starts_with('\n')) ++position;
        const std::optional<TypingKey> key = table.find(character);
        if (!key) return noKeyTypes(character);
        lines += keyLines(key->keyCode, key->modifiers);
    }
    return lines;
}

}  // namespace

std::string typedBy(const KeyboardLayout& layout, const Line& line) {
    const bool isTyped = line.kind == LineKind::key && (line.modifiers & ~modifier::shift) == 0;
    return isTyped ? layout.typed(line.keyCode, line.modifiers != 0) : std::string();
}

Result<std::string> keyLinesOf(const KeyboardLayout& layout, std::string_view text) {
    return keyLinesOf(TypingTable(layout), text);
}

Result<Splice> retyped(const RecordedScript& recording, std::size_t first, std::size_t count,
                       std::string_view text, const KeyboardLayout& layout) {
    const auto typed = [&](std::size_t index) { return typedBy(layout, recording.lines()[index]); };
    const std::size_t last = first + count;
    std::size_t end = last;
    for (std::string character; first < end; ++first, text.remove_prefix(character.size())) {
        character = typed(first);
        if (!text.starts_with(character)) break;
    }
    for (std::string character; first < end; --end, text.remove_suffix(character.size())) {
        character = typed(end - 1);
        if (!text.ends_with(character)) break;
    }
    const Result<std::string> lines = keyLinesOf(layout, text);
    if (!lines) return lines.error();
    if (first < end) return recording.rewritten(first, end - first, lines.value());
    if (first == last) return recording.replaced(first, 0, lines.value());
    // Below what is told about the keys, and before the first of them that stays.
    return recording.rewritten(first, 1,
                               lines.value() + std::string(recording.bytesOf(recording.lines()[first])));
}

std::optional<Splice> convertedToText(const RecordedScript& recording, std::size_t first, std::size_t count,
                                      const KeyboardLayout& layout) {
    std::string lines;
    std::string run;
    bool isConverted = false;
    const auto endRun = [&] {
        if (!run.empty()) lines += textLines(std::exchange(run, {}));
    };
    for (std::size_t index = first; index < first + count; ++index) {
        const Line& line = recording.lines()[index];
        if (index > first && line.remarks > 0) {
            endRun();
            lines += recording.remarksOf(line);
        }
        const std::string typed = typedBy(layout, line);
        run += typed;
        isConverted = isConverted || !typed.empty();
        if (!typed.empty()) continue;
        endRun();
        lines += recording.bytesOf(line);
    }
    endRun();
    return isConverted ? std::optional(recording.rewritten(first, count, std::move(lines))) : std::nullopt;
}

Result<std::optional<Splice>> convertedToKeys(const RecordedScript& recording, std::size_t first,
                                              std::size_t count, const KeyboardLayout& layout) {
    const TypingTable table(layout);
    std::string lines;
    bool isConverted = false;
    for (std::size_t index = first; index < first + count; ++index) {
        const Line& line = recording.lines()[index];
        if (index > first) lines += recording.remarksOf(line);
        if (line.kind == LineKind::text) {
            auto keys = keyLinesOf(table, recording.textOf(line));
            if (!keys) return keys.error();
            lines += keys.value();
            isConverted = true;
        } else {
            lines += recording.bytesOf(line);
        }
    }
    if (!isConverted) return std::optional<Splice>();
    return std::optional(recording.rewritten(first, count, std::move(lines)));
}

}  // namespace steps
