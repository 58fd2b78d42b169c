// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How often one command plays a script.
struct PlayTimes {
    /// 0 and below plays nothing; empty plays until the user stops it.
    std::optional<std::int32_t> count = 1;

    static PlayTimes untilStopped() { return {std::nullopt}; }
    /// Whether another run follows after so many.
    bool goOnAfter(std::int64_t runs) const { return !count || runs < *count; }

    friend bool operator==(const PlayTimes&, const PlayTimes&) = default;
};

/// What a script's own pauses (`delay`) are divided by. All else takes the time that it needs: how long
/// modifiers stay down behind a key, and the moment between two runs.
namespace playspeed {
inline constexpr double slowest = 0.25;
inline constexpr double usual = 1;
inline constexpr double fastest = 4;
}  // namespace playspeed

/// How a script is played by one command.
struct PlayOptions {
    PlayTimes times = {};
    /// From playspeed::slowest to playspeed::fastest.
    double speed = playspeed::usual;

    friend bool operator==(const PlayOptions&, const PlayOptions&) = default;
};

/// What somebody says of how a script is to be played; the rest is as it would be without.
struct PlayWish {
    std::optional<PlayTimes> times = {};
    std::optional<double> speed = {};

    PlayOptions over(const PlayOptions& usual) const {
        return {.times = times.value_or(usual.times), .speed = speed.value_or(usual.speed)};
    }

    friend bool operator==(const PlayWish&, const PlayWish&) = default;
};

/// As it is written on a command line: a whole number from 1 on, or "until-stopped". Empty if it is neither.
std::optional<PlayTimes> playTimesFromText(std::string_view text);

/// The same way back.
std::string textOf(const PlayTimes& times);

/// As it is written on a command line, with a point whatever the locale: "0.5". Empty if it is no number, or
/// too slow or too fast.
std::optional<double> playSpeedFromText(std::string_view text);
