// SPDX-License-Identifier: MIT
#include "app/script/Report.h"

#include <algorithm>
#include <iostream>

#include "platform/Utf8.h"

namespace {

constexpr std::size_t widestLine = 200;

/// The line, without its end.
std::string_view lineOf(std::string_view source, std::uint32_t number) {
    std::size_t begin = 0;
    for (std::uint32_t line = 1; line < number && begin < source.size(); ++line) {
        const std::size_t end = std::min(source.find_first_of("\r\n", begin), source.size());
        begin = std::min(end + (source.substr(end, 2) == "\r\n" ? 2 : 1), source.size());
    }
    return source.substr(begin, source.find_first_of("\r\n", begin) - begin);
}

/// As wide as so many characters of the line: tabs stay, all else is blank.
std::string indentation(std::string_view line, std::uint32_t characters) {
    std::string out;
    for (const char c : line) {
        if (isUtf8Continuation(c)) continue;
        if (characters-- == 0) break;
        out += c == '\t' ? '\t' : ' ';
    }
    return out;
}

}  // namespace

void Report::tell(const char* kind, const script::ScriptError& error) const {
    std::cerr << m_file << ":" << error.location.line << ":" << error.location.column << ": " << kind
              << " error: " << error.message << " (" << error.number << ")\n";
    const std::string_view line = lineOf(m_source, error.location.line);
    if (!line.empty() && line.size() <= widestLine) {
        std::cerr << line << "\n" << indentation(line, error.location.column - 1) << "^\n";
    }
    if (!error.hint.empty()) std::cerr << "Hint: " << error.hint << "\n";
}

void Report::warning(const script::ScriptWarning& warning) const {
    std::cerr << m_file << ":" << warning.location.line << ":" << warning.location.column
              << ": warning: " << warning.message << "\n";
}

void reportError(const std::string& subject, const Error& error) {
    std::cerr << "keyrill-script: " << subject << error.message << (error.hint.empty() ? "" : " ")
              << error.hint << "\n";
}
