// SPDX-License-Identifier: MIT
#include "compositor/Hands.h"

#include <cctype>
#include <chrono>
#include <iterator>
#include <stdexcept>
#include <thread>

#include "support/Keys.h"

namespace {

/// The key, by its X key code, that a US keyboard has the character on.
std::uint8_t keyOf(char character) {
    const std::string rows[] = {"1234567890", "qwertyuiop", "asdfghjkl", "zxcvbnm"};
    const std::uint8_t firsts[] = {xkey::one, xkey::q, xkey::a, xkey::z};
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        const std::size_t place = rows[row].find(character);
        if (place != std::string::npos) return static_cast<std::uint8_t>(firsts[row] + place);
    }
    if (character == ' ') return xkey::space;
    if (character == '.') return xkey::period;
    throw std::runtime_error(std::string("no key for ") + character);
}

}  // namespace

void Hands::stroke(std::initializer_list<std::uint8_t> keycodes) {
    constexpr std::chrono::milliseconds gap{30};
    for (const std::uint8_t keycode : keycodes) {
        std::this_thread::sleep_for(gap);
        press(keycode);
    }
    for (const auto* keycode = keycodes.end(); keycode != keycodes.begin();) {
        std::this_thread::sleep_for(gap);
        release(*--keycode);
    }
}

void Hands::type(const std::string& text) {
    for (const char character : text) {
        const bool isCapital = std::isupper(static_cast<unsigned char>(character)) != 0;
        const auto small = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        isCapital ? stroke({xkey::shift, keyOf(small)}) : stroke({keyOf(small)});
    }
}
