// SPDX-License-Identifier: MIT
#include "platform/Installation.h"

#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/Addresses.h"

namespace {

constexpr std::string_view unescaped = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

}  // namespace

Installation::Installation(std::string programs) : m_programs(std::move(programs)) {}

Installation Installation::ofProcess() {
    std::error_code failed;
    return Installation(std::filesystem::read_symlink("/proc/self/exe", failed).parent_path().string());
}

std::string Installation::companions() const { return place(KEYRILL_COMPANIONS_FROM_PROGRAMS); }

std::string Installation::presets() const { return place(KEYRILL_PRESETS_FROM_PROGRAMS); }

std::string Installation::pictures() const { return place(KEYRILL_SHARE_FROM_PROGRAMS "/keyrill"); }

std::string Installation::icons() const { return place(KEYRILL_SHARE_FROM_PROGRAMS "/icons"); }

std::string Installation::manual(std::string_view language) const {
    const std::filesystem::path english = place(KEYRILL_MANUAL_FROM_PROGRAMS);
    const std::filesystem::path translated = english.parent_path() / language / english.filename();
    std::error_code failed;
    return std::filesystem::is_regular_file(translated, failed) ? translated.string() : english.string();
}

std::string Installation::place(std::string_view fromPrograms) const {
    return (std::filesystem::path(m_programs) / fromPrograms).lexically_normal().string();
}

std::string fileUrl(std::string_view path) {
    std::string url = "file://";
    for (const char character : path) {
        if (unescaped.find(character) != std::string_view::npos) {
            url += character;
        } else {
            const auto byte = static_cast<std::uint8_t>(character);
            url += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
        }
    }
    return url;
}

std::string documentationPage(std::string_view language) {
    const std::string_view chosen = addresses::documentationPage;
    return chosen.empty() ? fileUrl(Installation::ofProcess().manual(language)) : std::string(chosen);
}
