// SPDX-License-Identifier: MIT
#include "platform/fake/Journal.h"

#include <algorithm>
#include <iterator>
#include <sstream>

Journal::Word Journal::mask(std::uint32_t modifiers) {
    std::ostringstream text;
    text << "0x" << std::hex << modifiers;
    return {text.str()};
}

Journal::Lines Journal::of(std::initializer_list<std::string_view> calls) const {
    Lines lines;
    std::copy_if(m_lines.begin(), m_lines.end(), std::back_inserter(lines), [&](const std::string& line) {
        const std::string_view call = std::string_view(line).substr(0, line.find('('));
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    });
    return lines;
}

std::string Journal::printed(std::string_view text) { return '"' + std::string(text) + '"'; }
