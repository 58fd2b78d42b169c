// SPDX-License-Identifier: MIT
#include "platform/linux/MachineFacts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>
#include <string_view>
#include <vector>

#include "platform/linux/GLibPointers.h"

namespace {

constexpr std::string_view blanks{" \t\r\n\0", 5};

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The number that a text begins with; empty if it begins with none.
template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number{};
    text = trimmed(text);
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    return number;
}

/// The values of the lines "NAME<mark>VALUE", trimmed.
std::vector<std::string> valuesOf(const std::string& content, std::string_view name, char mark) {
    std::vector<std::string> values;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        const auto end = line.find(mark);
        if (end == std::string::npos || trimmed(std::string_view(line).substr(0, end)) != name) continue;
        values.emplace_back(trimmed(std::string_view(line).substr(end + 1)));
    }
    return values;
}

std::string unquoted(const std::string& value) {
    const GText text(g_shell_unquote(value.c_str(), nullptr));
    return text ? text.get() : value;
}

bool isPlaceholder(std::string_view name) {
    constexpr std::array<std::string_view, 9> placeholders{"",
                                                           "System Product Name",
                                                           "To Be Filled By O.E.M.",
                                                           "To be filled by O.E.M.",
                                                           "Default string",
                                                           "Not Applicable",
                                                           "Not Specified",
                                                           "None",
                                                           "Unknown"};
    return std::find(placeholders.begin(), placeholders.end(), name) != placeholders.end();
}

std::int32_t asInt32(double number) {
    constexpr double greatest = std::numeric_limits<std::int32_t>::max();
    return number >= 0 ? static_cast<std::int32_t>(std::min(std::round(number), greatest)) : 0;
}

/// How many numbers a list such as "0-3,8,10-11" names; 0 for what is no list.
std::uint32_t countInRanges(std::string_view list) {
    std::uint64_t count = 0;
    std::istringstream ranges{std::string(trimmed(list))};
    for (std::string range; std::getline(ranges, range, ',');) {
        const auto first = numberIn<std::uint32_t>(range);
        const auto dash = range.find('-');
        const auto last = dash == std::string::npos ? first : numberIn<std::uint32_t>(range.substr(dash + 1));
        if (!first || !last || *last < *first) return 0;
        count += std::uint64_t{*last} - *first + 1;
    }
    return static_cast<std::uint32_t>(
        std::min<std::uint64_t>(count, std::numeric_limits<std::uint32_t>::max()));
}

}  // namespace

std::string MachineFacts::content(const std::string& path) const {
    std::error_code error;
    if (!std::filesystem::is_regular_file(m_root + path, error)) return {};
    std::ostringstream text;
    text << std::ifstream(m_root + path, std::ios::binary).rdbuf();
    return text.str();
}

std::string MachineFacts::systemVersion() const {
    for (const std::string path : {"/etc/os-release", "/usr/lib/os-release"}) {
        const std::string release = content(path);
        for (const std::string_view name : {"PRETTY_NAME", "NAME"}) {
            // A later line stands before an earlier one, as for the shell.
            const auto values = valuesOf(release, name, '=');
            const std::string version = values.empty() ? "" : unquoted(values.back());
            if (!trimmed(version).empty()) return std::string(trimmed(version));
        }
    }
    return "Linux";
}

std::optional<std::string> MachineFacts::machineName() const {
    for (const std::string path : {"/sys/class/dmi/id/product_name", "/proc/device-tree/model"}) {
        const std::string text = content(path);
        const std::string_view name = trimmed(text);
        if (!isPlaceholder(name)) return std::string(name);
    }
    return std::nullopt;
}

std::int32_t MachineFacts::processorClock() const {
    std::int64_t fastest = 0;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(m_root + "/sys/devices/system/cpu", error)) {
        const std::string name = entry.path().filename();
        const auto clock = content("/sys/devices/system/cpu/" + name + "/cpufreq/cpuinfo_max_freq");
        fastest = std::max(fastest, numberIn<std::int64_t>(clock).value_or(0));
    }
    constexpr double kiloHertzPerMegaHertz = 1000;
    if (fastest > 0) return asInt32(static_cast<double>(fastest) / kiloHertzPerMegaHertz);
    double fastestNow = 0;
    for (const std::string& clock : valuesOf(content("/proc/cpuinfo"), "cpu MHz", ':')) {
        fastestNow = std::max(fastestNow, numberIn<double>(clock).value_or(0));
    }
    return asInt32(fastestNow);
}

std::uint32_t MachineFacts::processors() const {
    const std::uint32_t present = countInRanges(content("/sys/devices/system/cpu/present"));
    if (present > 0) return present;
    return static_cast<std::uint32_t>(valuesOf(content("/proc/cpuinfo"), "processor", ':').size());
}

std::int32_t MachineFacts::memory() const {
    const auto values = valuesOf(content("/proc/meminfo"), "MemTotal", ':');
    if (values.empty()) return 0;
    constexpr std::int64_t kilobytesPerMegabyte = 1024;
    const std::int64_t megabytes = numberIn<std::int64_t>(values.front()).value_or(0) / kilobytesPerMegabyte;
    return asInt32(static_cast<double>(megabytes));
}
