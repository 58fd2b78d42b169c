// SPDX-License-Identifier: MIT
#include "platform/script/source/Wording.h"

namespace script {

std::string quoted(std::string_view text) { return "“" + std::string(text) + "”"; }

std::string alternatives(const std::vector<std::string_view>& words) {
    std::string out;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) out += i + 1 == words.size() ? " or " : ", ";
        out += quoted(words[i]);
    }
    return out;
}

std::string givenTwice(std::string_view name, std::string_view kind) {
    return "The " + std::string(name) + " " + std::string(kind) + " is specified more than once.";
}

}  // namespace script
