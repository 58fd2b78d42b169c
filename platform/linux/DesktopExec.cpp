// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopExec.h"

#include <string_view>

#include "platform/Sentence.h"
#include "platform/Utf8.h"
#include "platform/linux/GLibPointers.h"

namespace {

constexpr std::string_view reserved = " \t\n\"'\\><~|&;$*?#()`";
constexpr std::string_view escapedInQuotes = "\"`$\\";

std::string quoted(const std::string& argument) {
    if (argument.find_first_of(reserved) == std::string::npos) return argument;
    std::string result = "\"";
    for (const char character : argument) {
        if (escapedInQuotes.find(character) != std::string_view::npos) result += '\\';
        result += character;
    }
    return result + '"';
}

/// The value's second layer, which all texts of a key file have.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        switch (character) {
            case '\\':
                result += "\\\\";
                break;
            case '\n':
                result += "\\n";
                break;
            case '\t':
                result += "\\t";
                break;
            case '\r':
                result += "\\r";
                break;
            default:
                result += character;
        }
    }
    return result;
}

std::optional<std::string> unescaped(const std::string& value) {
    std::string result;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\') {
            result += value[i];
            continue;
        }
        constexpr std::string_view letters = "sntr\\";
        constexpr std::string_view meanings = " \n\t\r\\";
        const auto letter = ++i < value.size() ? letters.find(value[i]) : std::string_view::npos;
        if (letter == std::string_view::npos) return std::nullopt;
        result += meanings[letter];
    }
    return result;
}

}  // namespace

Result<std::string> execValue(const std::string& path) {
    if (path.find('%') != std::string::npos) {
        //: %1 is the path.
        return Error{
            sentence("LogIn", "A program whose path has a percent sign cannot be started at login: %1")
                .arg(path),
            sentence("LogIn", "Move the program to a folder without one.")};
    }
    if (invalidUtf8(path)) {
        //: %1 is the path.
        return Error{
            sentence("LogIn", "A program whose path is not UTF-8 cannot be started at login: %1").arg(path),
            sentence("LogIn", "Move the program to another folder.")};
    }
    return escaped(quoted(path));
}

std::optional<std::string> programIn(const std::string& execValue) {
    const auto line = unescaped(execValue);
    char** words = nullptr;
    // Quoting in entries is a part of the shell's.
    if (!line || g_shell_parse_argv(line->c_str(), nullptr, &words, nullptr) == FALSE) return std::nullopt;
    const GTexts owned(words);
    return std::string(*words);
}
