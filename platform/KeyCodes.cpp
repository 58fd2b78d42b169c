// SPDX-License-Identifier: MIT
#include "platform/KeyCodes.h"

#include <algorithm>
#include <array>

namespace keycode {
namespace {

constexpr std::uint32_t keypadEnter = 76;
constexpr std::uint32_t keypadDecimal = 65;
/// Rows above are played, never recorded.
constexpr std::uint32_t lastRecorded = 127;

/// Above are four of them, as many as X11 has.
constexpr std::uint32_t lastLayout = 4 * firstLayout;

/// The row of a code, or null.
const Row* find(std::uint32_t code) {
    const auto& table = rows();
    const auto row = std::lower_bound(table.begin(), table.end(), code,
                                      [](const Row& r, std::uint32_t c) { return r.code < c; });
    return row != table.end() && row->code == code ? &*row : nullptr;
}

using CodeByEvdev = std::array<std::uint32_t, maxEvdev + 1>;

CodeByEvdev makeCodeByEvdev() {
    CodeByEvdev codes{};
    for (std::uint32_t evdev = 0; evdev < codes.size(); ++evdev) codes[evdev] = evdevBase + evdev;
    for (const Row& row : rows()) {
        if (row.code <= lastRecorded && row.evdev != 0 && row.evdev <= maxEvdev) codes[row.evdev] = row.code;
    }
    codes[*evdevFor(keypadEnter)] = keypadEnter;
    return codes;
}

}  // namespace

const std::vector<Row>& rows() {
    static const std::vector<Row> table = {
#include "KeyCodeTable.inc"
    };
    return table;
}

std::optional<std::uint32_t> layoutOf(std::uint32_t code) {
    const std::uint32_t layout = code & layouts;
    if (layout == 0 || layout > lastLayout) return std::nullopt;
    return layout / firstLayout - 1;
}

std::optional<std::uint16_t> evdevFor(std::uint32_t code) {
    const std::uint32_t base = baseOf(code);
    if (base == power || (code & layouts) > lastLayout) return std::nullopt;
    if (base >= evdevBase && base <= evdevBase + maxEvdev)
        return static_cast<std::uint16_t>(base - evdevBase);
    const Row* row = find(base);
    if (row == nullptr || row->evdev == 0 || row->evdev > maxEvdev) return std::nullopt;
    return row->evdev;
}

std::uint32_t fromEvdev(std::uint16_t evdev) {
    static const CodeByEvdev codes = makeCodeByEvdev();
    return evdev < codes.size() ? codes[evdev] : evdevBase + evdev;
}

bool isExtension(std::uint32_t code) {
    const std::uint32_t base = baseOf(code);
    if ((code & layouts) > lastLayout) return false;
    if (base >= evdevBase && base <= evdevBase + maxEvdev) return true;
    return code != base && find(base) != nullptr;
}

bool isKeypadDigit(std::uint32_t code) {
    constexpr std::uint32_t f20 = 90;
    return code == keypadDecimal || (code >= 82 && code <= 92 && code != f20);
}

}  // namespace keycode
