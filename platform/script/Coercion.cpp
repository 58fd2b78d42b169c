// SPDX-License-Identifier: MIT
#include "platform/script/Coercion.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "platform/Modifiers.h"
#include "platform/script/Literal.h"
#include "platform/script/ScriptError.h"

namespace script {
namespace {

constexpr int significantDigits = 12;

/// A real as its digits without trailing zeros, and the power of ten of the first digit.
struct Digits {
    std::string digits;
    int exponent = 0;
};

Digits digitsOf(double magnitude) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                      std::chars_format::scientific, significantDigits - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    Digits found;
    found.digits = std::string(1, text.front()) + std::string(text.substr(2, mark - 2));
    found.digits.erase(found.digits.find_last_not_of('0') + 1);
    if (found.digits.empty()) found.digits = "0";
    const std::size_t first = text[mark + 1] == '+' ? mark + 2 : mark + 1;
    std::from_chars(text.data() + first, text.data() + text.size(), found.exponent);
    return found;
}

/// `digits` with the point behind the first `whole` ones, filled with zeros on both sides.
std::string pointed(const std::string& digits, int whole) {
    std::string text = digits;
    if (whole < 1) text.insert(0, static_cast<std::size_t>(1 - whole), '0');
    const auto point = static_cast<std::size_t>(whole < 1 ? 1 : whole);
    if (text.size() <= point) text.append(point + 1 - text.size(), '0');
    return text.insert(point, 1, '.');
}

std::string modifierText(const Modifier& constant) {
    std::string name;
    switch (constant.modifier) {
        case modifier::command:
            name = "command";
            break;
        case modifier::control:
            name = "control";
            break;
        case modifier::option:
            name = "option";
            break;
        default:
            name = "shift";
            break;
    }
    return constant.down ? name + " down" : name;
}

std::string quotedText(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

}  // namespace

std::optional<double> numberOf(const Value& value) {
    if (const auto* integer = value.as<std::int64_t>()) return static_cast<double>(*integer);
    if (const auto* real = value.as<double>()) return *real;
    if (const auto* text = value.as<std::string>()) return numberInText(*text);
    if (const auto* list = value.as<List>(); list != nullptr && list->size() == 1)
        return numberOf(list->front());
    return std::nullopt;
}

std::optional<std::int32_t> integerOf(const Value& value) {
    const std::optional<double> number = numberOf(value);
    if (!number) return std::nullopt;
    const double rounded = std::round(*number);
    using Limits = std::numeric_limits<std::int32_t>;
    if (rounded < Limits::min() || rounded > Limits::max()) return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

std::string textOf(const Value& value) {
    if (const auto* text = value.as<std::string>()) return *text;
    if (const auto* integer = value.as<std::int64_t>()) return std::to_string(*integer);
    if (const auto* real = value.as<double>()) return realText(*real);
    if (const auto* constant = value.as<Modifier>()) return modifierText(*constant);
    std::string joined;
    for (const Value& item : *value.as<List>()) joined += textOf(item);
    return joined;
}

List itemsOf(Value value) {
    if (value.as<List>() != nullptr) return std::get<List>(std::move(value.content));
    List items;
    items.push_back(std::move(value));
    return items;
}

std::string realText(double value) {
    constexpr double large = 10000;
    constexpr double small = 0.0001;
    const double magnitude = std::abs(value);
    const std::string sign = value < 0 ? "-" : "";
    const Digits found = digitsOf(magnitude);
    if (magnitude == 0 || (magnitude > small && magnitude < large)) {
        return sign + pointed(found.digits, found.exponent + 1);
    }
    return sign + pointed(found.digits, 1) + "E" + (found.exponent < 0 ? "" : "+") +
           std::to_string(found.exponent);
}

std::string spelled(const Value& value) {
    if (const auto* text = value.as<std::string>()) return quotedText(*text);
    const auto* list = value.as<List>();
    if (list == nullptr) return textOf(value);
    std::string out = "{";
    for (const Value& item : *list) out += (out.size() > 1 ? ", " : "") + spelled(item);
    return out + "}";
}

Failure cannotMake(const Value& value, std::string_view type) {
    return {errornumber::cannotCoerce,
            "Can’t make " + spelled(value) + " into type " + std::string(type) + "."};
}

}  // namespace script
