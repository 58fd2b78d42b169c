// SPDX-License-Identifier: MIT
#include "platform/Encoding.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/Utf8.h"

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";
constexpr char32_t replacement = 0xFFFD;

/// MacRoman from 0x80 up, with the euro sign where it stands since 1998.
constexpr std::array<char16_t, 128> macRoman = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5,
    0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4,
    0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6,
    0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1, 0x2264, 0x2265,
    0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF,
    0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5,
    0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044,
    0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9,
    0x0131, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

constexpr std::uint32_t byteAt(std::string_view bytes, std::size_t position) {
    return position < bytes.size() ? static_cast<unsigned char>(bytes[position]) : 0U;
}

std::string fromMacRoman(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(out, byte < 0x80 ? byte : macRoman[byte - 0x80U]);
    }
    return out;
}

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
    const auto unitAt = [&](std::size_t position) {
        const std::uint32_t first = byteAt(bytes, position);
        const std::uint32_t second = byteAt(bytes, position + 1);
        return bigEndian ? first << 8U | second : second << 8U | first;
    };
    const auto isWithin = [](std::uint32_t unit, std::uint32_t first) { return (unit & 0xFC00U) == first; };
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        const std::uint32_t unit = unitAt(i);
        const std::uint32_t following = i + 3 < bytes.size() ? unitAt(i + 2) : 0;
        if (isWithin(unit, 0xD800) && isWithin(following, 0xDC00)) {
            appendUtf8(out, 0x10000U + ((unit & 0x3FFU) << 10U) + (following & 0x3FFU));
            i += 2;
        } else {
            const bool broken = i + 1 >= bytes.size() || (unit & 0xF800U) == 0xD800U;
            appendUtf8(out, broken ? replacement : unit);
        }
    }
    return out;
}

}  // namespace

std::string decodedText(std::string bytes) {
    const std::string_view view = bytes;
    if (view.starts_with(littleEndianMark)) return fromUtf16(view.substr(littleEndianMark.size()), false);
    if (view.starts_with(bigEndianMark)) return fromUtf16(view.substr(bigEndianMark.size()), true);
    if (invalidUtf8(view)) return fromMacRoman(view);
    if (view.starts_with(utf8Mark)) bytes.erase(0, utf8Mark.size());
    return bytes;
}

std::optional<std::size_t> firstMacRomanByte(std::string_view bytes) {
    if (bytes.starts_with(littleEndianMark) || bytes.starts_with(bigEndianMark)) return std::nullopt;
    return invalidUtf8(bytes);
}
