// SPDX-License-Identifier: MIT
#include "library/MacroSettings.h"

#include <array>
#include <charconv>
#include <string>
#include <string_view>
#include <system_error>

namespace {

constexpr const char* hotKeyCode = "hotKeyCode";
constexpr const char* hotKeyFlags = "hotKeyFlags";
constexpr const char* times = "times";
constexpr const char* speed = "speed";
constexpr const char* lastPlayed = "lastPlayed";

/// The field's text; empty if it is not there.
std::string_view textOf(const Record& record, const char* field) {
    const auto text = record.find(field);
    return text == record.end() ? std::string_view() : std::string_view(text->second);
}

template <typename Number>
std::optional<Number> numberOf(const Record& record, const char* field) {
    const std::string_view text = textOf(record, field);
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::string textOf(double number) {
    std::array<char, 32> text{};
    auto* const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

void put(Record& record, const char* field, bool isThere, const std::string& text) {
    if (isThere) {
        record[field] = text;
    } else {
        record.erase(field);
    }
}

}  // namespace

MacroSettings settingsFrom(const Record& record) {
    MacroSettings settings;
    const auto code = numberOf<std::int16_t>(record, hotKeyCode);
    const auto flags = numberOf<std::uint32_t>(record, hotKeyFlags);
    if (code && flags && *code >= 0) settings.hotKey = {.flags = *flags, .code = *code};
    settings.play.times = playTimesFromText(textOf(record, times)).value_or(PlayTimes{});
    settings.play.speed = playSpeedFromText(textOf(record, speed)).value_or(playspeed::usual);
    if (const auto seconds = numberOf<std::int64_t>(record, lastPlayed)) {
        settings.lastPlayed = PlayedAt(std::chrono::seconds(*seconds));
    }
    return settings;
}

void putSettings(Record& record, const MacroSettings& settings) {
    const MacroSettings initial;
    put(record, hotKeyCode, settings.hasHotKey(), std::to_string(settings.hotKey.code));
    put(record, hotKeyFlags, settings.hasHotKey(), std::to_string(settings.hotKey.flags));
    put(record, times, settings.play.times != initial.play.times, ::textOf(settings.play.times));
    put(record, speed, settings.play.speed != initial.play.speed, textOf(settings.play.speed));
    put(record, lastPlayed, settings.lastPlayed.has_value(),
        std::to_string(settings.lastPlayed.value_or(PlayedAt()).time_since_epoch().count()));
}
