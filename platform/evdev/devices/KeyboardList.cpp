// SPDX-License-Identifier: MIT
#include "platform/evdev/devices/KeyboardList.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <bitset>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "platform/evdev/devices/OwnDevice.h"

namespace evdev {

namespace {

constexpr std::string_view nodePrefix = "event";
constexpr std::size_t bitsOfWord = 8 * sizeof(unsigned long);

using KeyBits = std::bitset<KEY_CNT>;

std::optional<KeyBits> keyBits(std::string_view text) {
    std::istringstream stream{std::string(text)};
    std::vector<unsigned long> words;
    std::string word;
    while (stream >> word) {
        unsigned long value = 0;
        const char* end = word.data() + word.size();
        const auto parsed = std::from_chars(word.data(), end, value, 16);
        if (parsed.ec != std::errc() || parsed.ptr != end) return std::nullopt;
        words.push_back(value);
    }
    if (words.empty() || words.size() > KEY_CNT / bitsOfWord) return std::nullopt;
    KeyBits bits;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const KeyBits lowest(words[words.size() - 1 - i]);
        bits |= lowest << (i * bitsOfWord);
    }
    return bits;
}

bool hasAll(const KeyBits& bits, std::size_t first, std::size_t last) {
    for (std::size_t code = first; code <= last; ++code) {
        if (!bits[code]) return false;
    }
    return true;
}

bool isKeypad(const KeyBits& bits) {
    return hasAll(bits, KEY_KP7, KEY_KP9) && hasAll(bits, KEY_KP4, KEY_KP6) &&
           hasAll(bits, KEY_KP1, KEY_KP0) && bits[KEY_KPENTER];
}

/// Files of sysfs hold one line.
std::string lineOf(const std::string& file) {
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    return line;
}

int numberOf(const std::string& node) {
    int number = 0;
    std::from_chars(node.data() + nodePrefix.size(), node.data() + node.size(), number);
    return number;
}

}  // namespace

bool isKeyboard(std::string_view keys) {
    const std::optional<KeyBits> bits = keyBits(keys);
    return bits && (hasAll(*bits, KEY_ESC, KEY_S) || isKeypad(*bits));
}

bool isEventDeviceName(std::string_view name) {
    if (!name.starts_with(nodePrefix)) return false;
    const std::string_view digits = name.substr(nodePrefix.size());
    return !digits.empty() && digits.size() <= 4 &&
           digits.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<std::string> listKeyboards(const InputFolders& folders) {
    std::vector<std::string> nodes;
    std::error_code failure;
    for (const auto& entry : std::filesystem::directory_iterator(folders.classes, failure)) {
        const std::string node = entry.path().filename();
        if (!isEventDeviceName(node)) continue;
        const std::string device = entry.path() / "device";
        const bool own = lineOf(device + "/phys") == own_device::place;
        if (!own && isKeyboard(lineOf(device + "/capabilities/key"))) nodes.push_back(node);
    }
    std::sort(nodes.begin(), nodes.end(),
              [](const std::string& a, const std::string& b) { return numberOf(a) < numberOf(b); });
    return nodes;
}

}  // namespace evdev
