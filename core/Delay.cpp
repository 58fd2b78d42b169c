// SPDX-License-Identifier: MIT
#include "core/Delay.h"

#include <array>
#include <charconv>

#include "core/createShared.h"

namespace actionpack {
namespace {

/// The number as the C locale prints it, whatever the process's locale: to_chars knows of none.
std::string formatted(double number, std::chars_format format, int precision) {
    // The longest is the most negative double in fixed notation: sign, 309 digits, point, two decimals.
    std::array<char, 320> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), number, format, precision);
    return error == std::errc() ? std::string(text.data(), end) : std::string();
}

}  // namespace

std::string Delay::scriptLine() const {
    constexpr int significantDigits = 6;
    return "\tdelay " + formatted(m_seconds, std::chars_format::general, significantDigits) + "\n";
}

std::string Delay::displayText() const {
    constexpr int decimals = 2;
    return "<⌛ " + formatted(m_seconds, std::chars_format::fixed, decimals) + ">";
}

}  // namespace actionpack

boost::shared_ptr<actionpack::Delay> createDelay(const double& seconds) {
    return createShared<actionpack::Delay>(seconds);
}
