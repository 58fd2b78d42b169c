// SPDX-License-Identifier: MIT
#include "cli/Report.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "platform/ErrorText.h"
#include "platform/Sentence.h"
#include "platform/TerminalText.h"
#include "platform/Utf8.h"

namespace {

constexpr std::size_t widestLine = 200;

struct Columns {
    char32_t first;
    char32_t last;
    std::size_t count;
};

/// What terminals give to characters that do not take one column: marks that stand on another character, and
/// East Asian characters and pictures.
constexpr auto unusualColumns = std::to_array<Columns>({{0x300, 0x36F, 0},
                                                        {0x1AB0, 0x1AFF, 0},
                                                        {0x1100, 0x115F, 2},
                                                        {0x1DC0, 0x1DFF, 0},
                                                        {0x200B, 0x200F, 0},
                                                        {0x20D0, 0x20FF, 0},
                                                        {0x2E80, 0x303E, 2},
                                                        {0x3041, 0xA4CF, 2},
                                                        {0xAC00, 0xD7A3, 2},
                                                        {0xF900, 0xFAFF, 2},
                                                        {0xFE00, 0xFE0F, 0},
                                                        {0xFE30, 0xFE6F, 2},
                                                        {0xFF00, 0xFF60, 2},
                                                        {0xFFE0, 0xFFE6, 2},
                                                        {0x1F300, 0x1F64F, 2},
                                                        {0x1F680, 0x1F6FF, 2},
                                                        {0x1F900, 0x1FAFF, 2},
                                                        {0x20000, 0x3FFFD, 2}});

std::size_t columnsOf(char32_t character) {
    const auto* row = std::find_if(unusualColumns.begin(), unusualColumns.end(), [&](const Columns& range) {
        return character >= range.first && character <= range.last;
    });
    return row == unusualColumns.end() ? 1 : row->count;
}

/// As wide as so many characters of the line: tabs stay, all else is blank.
std::string indentation(std::string_view line, std::uint32_t characters) {
    std::string out;
    for (std::size_t position = 0; position < line.size() && characters > 0; --characters) {
        const char32_t character = takeCharacter(line, position);
        out += character == '\t' ? "\t" : std::string(columnsOf(character), ' ');
    }
    return out;
}

}  // namespace

void Report::tell(const char* kind, const script::ScriptError& error) const {
    std::cerr << harmlessText(m_file) << ":" << error.location.line << ":" << error.location.column << ": "
              << kind << " error: " << harmlessText(error.message.text()) << " (" << error.number << ")\n";
    const std::string_view line = script::lineOf(m_source, error.location.line);
    if (!line.empty() && line.size() <= widestLine) {
        std::cerr << harmlessText(line) << "\n" << indentation(line, error.location.column - 1) << "^\n";
    }
    if (!error.hint.empty())
        std::cerr << harmlessText(sentence("ScriptTool", "Hint: %1").arg(error.hint).text()) << "\n";
}

void Report::warning(const script::ScriptWarning& warning) const {
    std::cerr << harmlessText(m_file) << ":" << warning.location.line << ":" << warning.location.column
              << ": warning: " << harmlessText(warning.message) << "\n";
}

void reportError(const std::string& subject, const Error& error) {
    std::cerr << harmlessText("keyrill-script: " + subject + inOneParagraph(error)) << "\n";
}
