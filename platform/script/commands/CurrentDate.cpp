// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <ctime>

#include "platform/script/values/Dates.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& /*stage*/, const Arguments& /*arguments*/) {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return Value{makeShared<DateBody>(momentOf(
        {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec}))};
}

}  // namespace

const Command& currentDateCommand() {
    static const Command command{.name = "current date",
                                 .perform = perform,
                                 .manual = R"(current date

The date and time of now. A date has the properties `year`, `month`, `day`, `weekday`, `hours`, `minutes`, `seconds`,
`time`, `date string`, `short date string` and `time string`; seconds can be added to it, and a date taken from it.
`date "2026-01-31"`, `date "1/31/2026 1:05 PM"` and `date "January 31, 2026"` are dates, too. The texts of a date are the
same in all countries; for another order put its parts together, as the recipe “Today's date” does.)",
                                 .examples = R"(class of (current date) => date
short date string of date "2026-01-31" => "1/31/26"
date string of date "2026-01-31" => "Saturday, January 31, 2026"
time string of date "2026-01-31 13:05:09" => "1:05:09 PM"
(current date) > date "2020-01-01" => true)"};
    return command;
}

}  // namespace script
