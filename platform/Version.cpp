// SPDX-License-Identifier: MIT
#include "platform/Version.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <vector>

namespace {

using Numbers = std::vector<std::uint64_t>;

std::optional<Numbers> numbersIn(std::string_view version) {
    Numbers numbers;
    const char* position = version.data();
    const char* const end = position + version.size();
    for (;;) {
        const auto [stop, error] = std::from_chars(position, end, numbers.emplace_back());
        if (error != std::errc()) return std::nullopt;
        if (stop == end) break;
        if (*stop != '.') return std::nullopt;
        position = stop + 1;
    }
    // Without the zeros at the end, so that 1.0 equals 1.
    while (!numbers.empty() && numbers.back() == 0) numbers.pop_back();
    return numbers;
}

}  // namespace

bool isNewerVersion(std::string_view version, std::string_view than) {
    const auto left = numbersIn(version);
    const auto right = numbersIn(than);
    return left && right &&
           std::lexicographical_compare(right->begin(), right->end(), left->begin(), left->end());
}
