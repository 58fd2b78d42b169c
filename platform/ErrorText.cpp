// SPDX-License-Identifier: MIT
#include "platform/ErrorText.h"

#include <algorithm>
#include <array>

namespace {

bool isEnded(std::string_view sentence) {
    constexpr std::array<std::string_view, 8> ends = {".",      "!",      "?",      ":",
                                                      "\u2026", "\u3002", "\uFF01", "\u061F"};
    return std::any_of(ends.begin(), ends.end(),
                       [sentence](std::string_view end) { return sentence.ends_with(end); });
}

}  // namespace

std::string inOneParagraph(std::string_view message, std::string_view hint) {
    std::string paragraph(message);
    if (hint.empty()) return paragraph;
    if (!isEnded(message)) paragraph += '.';
    return paragraph.append(" ").append(hint);
}

std::string inOneParagraph(const Error& error) {
    return inOneParagraph(error.message.text(), error.hint.text());
}
