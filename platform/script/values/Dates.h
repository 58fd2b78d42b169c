// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace script {

/// The parts of a moment; they may be out of their ranges where a moment is made of them.
struct CalendarParts {
    std::int64_t year = 1970;
    std::int64_t month = 1;
    std::int64_t day = 1;
    std::int64_t hours = 0;
    std::int64_t minutes = 0;
    std::int64_t seconds = 0;
};

/// Moments are seconds since 1970 began, of the calendar and without time zones.
CalendarParts partsOf(std::int64_t moment);
/// Each part lies within 32 bits; what comes of them may be no moment.
std::int64_t momentOf(const CalendarParts& parts);
/// 1 is Sunday.
std::uint8_t weekdayOf(std::int64_t moment);

/// `number` from 1: "January", "Sunday".
std::string_view monthName(std::size_t number);
std::string_view weekdayName(std::size_t number);

/// "Saturday, January 31, 2026 at 1:05:09 PM": one form in every locale.
std::string dateText(std::int64_t moment);
/// "Saturday, January 31, 2026"
std::string dateOnlyText(std::int64_t moment);
/// "1/31/26"
std::string shortDateText(std::int64_t moment);
/// "1:05:09 PM"
std::string timeOnlyText(std::int64_t moment);

/// Reads what dateText() and dateOnlyText() write, the weekday left out or not, and "2026-01-31",
/// "2026-01-31 13:05", "2026-01-31T13:05:09"; "1/31/2026 1:05 PM" has the month first. Empty for all else.
std::optional<std::int64_t> momentInText(std::string_view text);

/// Moments reach from year 1 to 9999.
bool isMoment(std::int64_t moment);

}  // namespace script
