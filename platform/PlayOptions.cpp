// SPDX-License-Identifier: MIT
#include "platform/PlayOptions.h"

#include <charconv>
#include <system_error>

namespace {

constexpr const char* untilStopped = "until-stopped";

/// All of the text as a number; empty if it is none or goes beyond the type.
template <typename Number>
std::optional<Number> numberFrom(std::string_view text) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

std::optional<PlayTimes> playTimesFromText(std::string_view text) {
    if (text == untilStopped) return PlayTimes::untilStopped();
    const auto count = numberFrom<std::int32_t>(text);
    if (!count || *count < 1) return std::nullopt;
    return PlayTimes{count};
}

std::string textOf(const PlayTimes& times) {
    return times.count ? std::to_string(*times.count) : untilStopped;
}

std::optional<double> playSpeedFromText(std::string_view text) {
    const auto speed = numberFrom<double>(text);
    if (!speed || !(*speed >= playspeed::slowest && *speed <= playspeed::fastest)) return std::nullopt;
    return speed;
}
