// SPDX-License-Identifier: MIT
#include "platform/script/values/Dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <vector>

#include "platform/script/source/Name.h"

namespace script {
namespace {

constexpr std::int64_t secondsOfDay = 86400;
constexpr std::array<std::string_view, 12> months{"January",   "February", "March",    "April",
                                                  "May",       "June",     "July",     "August",
                                                  "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> weekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

std::int64_t roundedDown(std::int64_t number, std::int64_t divisor) {
    return number >= 0 ? number / divisor : (number - divisor + 1) / divisor;
}

std::int64_t dayNumber(std::int64_t moment) { return roundedDown(moment, secondsOfDay); }

std::string twoDigits(std::int64_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

/// Words, numbers and signs in a row: "January 31, 2026" is January, 31, 2026.
std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    bool goesOn = false;
    for (const char c : text) {
        const bool separates = c == ' ' || c == ',' || c == '-' || c == ':' || c == '/';
        // The letter between the date and the time of a timestamp.
        const bool divides = c == 'T' && goesOn && words.back().front() <= '9';
        if (separates || divides) {
            goesOn = false;
            continue;
        }
        if (!goesOn) words.emplace_back();
        goesOn = true;
        words.back() += c;
    }
    return words;
}

std::optional<std::int64_t> numberOf(const std::string& word) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 0) return std::nullopt;
    return number;
}

/// The place of a name in its table, from 1; case does not matter.
template <typename Names>
std::optional<std::int64_t> placeOf(const std::string& word, const Names& names) {
    const auto found = std::find_if(names.begin(), names.end(), [&](std::string_view name) {
        return asciiLowered(name) == asciiLowered(word);
    });
    if (found == names.end()) return std::nullopt;
    return found - names.begin() + 1;
}

/// Takes words off a list, one after another.
class WordReader {
  public:
    explicit WordReader(std::vector<std::string> words) : m_words(std::move(words)) {}

    bool isAtEnd() const { return m_next == m_words.size(); }
    const std::string& current() const { return m_words[m_next]; }
    void skip() { ++m_next; }
    bool skip(std::string_view word) {
        const bool found = !isAtEnd() && asciiLowered(current()) == word;
        if (found) skip();
        return found;
    }
    bool number(std::int64_t& target, std::int64_t first, std::int64_t last) {
        const std::optional<std::int64_t> found = isAtEnd() ? std::nullopt : numberOf(current());
        if (!found || *found < first || *found > last) return false;
        target = *found;
        skip();
        return true;
    }

  private:
    std::vector<std::string> m_words;
    std::size_t m_next = 0;
};

/// One of two digits lies between 1950 and 2049.
bool readYear(WordReader& words, CalendarParts& parts) {
    const bool isShort = !words.isAtEnd() && words.current().size() <= 2;
    if (!words.number(parts.year, 0, 9999)) return false;
    if (isShort) parts.year += parts.year < 50 ? 2000 : 1900;
    return parts.year > 0;
}

bool readDate(WordReader& words, CalendarParts& parts) {
    if (words.isAtEnd()) return false;
    if (placeOf(words.current(), weekdays)) words.skip();
    if (words.isAtEnd()) return false;
    if (const auto month = placeOf(words.current(), months)) {
        parts.month = *month;
        words.skip();
        return words.number(parts.day, 1, 31) && words.number(parts.year, 1, 9999);
    }
    constexpr std::size_t shortNumber = 2;
    const bool beginsWithYear = words.current().size() > shortNumber;
    if (beginsWithYear) {
        return words.number(parts.year, 1, 9999) && words.number(parts.month, 1, 12) &&
               words.number(parts.day, 1, 31);
    }
    return words.number(parts.month, 1, 12) && words.number(parts.day, 1, 31) && readYear(words, parts);
}

bool readTime(WordReader& words, CalendarParts& parts) {
    words.skip("at");
    if (words.isAtEnd()) return true;
    if (!words.number(parts.hours, 0, 23) || !words.number(parts.minutes, 0, 59)) return false;
    const bool hasSeconds = !words.isAtEnd() && numberOf(words.current());
    if (hasSeconds && !words.number(parts.seconds, 0, 59)) return false;
    if (words.skip("am")) {
        if (parts.hours == 12) parts.hours = 0;
    } else if (words.skip("pm")) {
        if (parts.hours < 12) parts.hours += 12;
    }
    return words.isAtEnd();
}

}  // namespace

CalendarParts partsOf(std::int64_t moment) {
    const std::int64_t day = dayNumber(moment);
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{day}}};
    const std::int64_t time = moment - day * secondsOfDay;
    return {static_cast<int>(date.year()),
            static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day()),
            time / 3600,
            time / 60 % 60,
            time % 60};
}

std::int64_t momentOf(const CalendarParts& parts) {
    // The calendar comes round in this time, so that years beyond those of std::chrono are counted as well.
    constexpr std::int64_t yearsOfRound = 400;
    constexpr std::int64_t daysOfRound = 146097;
    const std::int64_t years = roundedDown(parts.month - 1, 12);
    const std::int64_t rounds = roundedDown(parts.year + years, yearsOfRound);
    const std::chrono::year year{static_cast<int>(parts.year + years - rounds * yearsOfRound)};
    const std::chrono::month month{static_cast<unsigned>(parts.month - years * 12)};
    const auto first = std::chrono::sys_days{year / month / std::chrono::day{1}};
    const std::int64_t days = first.time_since_epoch().count() + rounds * daysOfRound + parts.day - 1;
    return days * secondsOfDay + parts.hours * 3600 + parts.minutes * 60 + parts.seconds;
}

std::uint8_t weekdayOf(std::int64_t moment) {
    constexpr std::int64_t firstDay = 4;  // 1970 began on a Thursday
    const std::int64_t place = (dayNumber(moment) + firstDay) % 7;
    return static_cast<std::uint8_t>((place + 7) % 7 + 1);
}

std::string_view monthName(std::size_t number) { return months[number - 1]; }
std::string_view weekdayName(std::size_t number) { return weekdays[number - 1]; }

std::string dateOnlyText(std::int64_t moment) {
    const CalendarParts parts = partsOf(moment);
    return std::string(weekdayName(weekdayOf(moment))) + ", " +
           std::string(monthName(static_cast<std::size_t>(parts.month))) + " " + std::to_string(parts.day) +
           ", " + std::to_string(parts.year);
}

std::string shortDateText(std::int64_t moment) {
    const CalendarParts parts = partsOf(moment);
    return std::to_string(parts.month) + "/" + std::to_string(parts.day) + "/" + twoDigits(parts.year % 100);
}

std::string timeOnlyText(std::int64_t moment) {
    const CalendarParts parts = partsOf(moment);
    const std::int64_t hour = parts.hours % 12 == 0 ? 12 : parts.hours % 12;
    return std::to_string(hour) + ":" + twoDigits(parts.minutes) + ":" + twoDigits(parts.seconds) +
           (parts.hours < 12 ? " AM" : " PM");
}

std::string dateText(std::int64_t moment) { return dateOnlyText(moment) + " at " + timeOnlyText(moment); }

std::optional<std::int64_t> momentInText(std::string_view text) {
    constexpr std::size_t longest = 100;
    if (text.size() > longest) return std::nullopt;
    WordReader words(wordsOf(text));
    CalendarParts parts;
    if (!readDate(words, parts) || !readTime(words, parts)) return std::nullopt;
    const std::int64_t moment = momentOf(parts);
    // A day that the month does not have.
    if (partsOf(moment).day != parts.day) return std::nullopt;
    return moment;
}

bool isMoment(std::int64_t moment) {
    constexpr std::int64_t first = -62135596800;  // 1 January 1
    constexpr std::int64_t last = 253402300799;   // 31 December 9999
    return moment >= first && moment <= last;
}

}  // namespace script
