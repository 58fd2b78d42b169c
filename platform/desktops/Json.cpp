// SPDX-License-Identifier: MIT
#include "platform/desktops/Json.h"

#include <charconv>
#include <utility>

#include "platform/Utf8.h"

namespace {

constexpr int deepest = 512;

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

/// A pair of escapes stands for one character beyond U+FFFF.
constexpr bool isFirstHalf(char32_t code) { return code >= 0xD800 && code < 0xDC00; }
constexpr bool isSecondHalf(char32_t code) { return code >= 0xDC00 && code < 0xE000; }

}  // namespace

/// By descent; each function leaves the rest of the text, and is empty where the grammar is broken.
class Json::Reader {
  public:
    explicit Reader(std::string_view text) : m_rest(text) {}

    std::optional<Json> document() {
        auto value = this->value(0);
        skipBlanks();
        return m_rest.empty() ? std::move(value) : std::nullopt;
    }

  private:
    void skipBlanks() {
        while (!m_rest.empty() && isBlank(m_rest.front())) m_rest.remove_prefix(1);
    }
    bool take(std::string_view word) {
        skipBlanks();
        if (!m_rest.starts_with(word)) return false;
        m_rest.remove_prefix(word.size());
        return true;
    }

    std::optional<Json> value(int depth) {
        if (depth > deepest) return std::nullopt;
        if (take("{")) return object(depth);
        if (take("[")) return array(depth);
        if (take("true")) return Json(Value(true));
        if (take("false")) return Json(Value(false));
        if (take("null")) return Json();
        if (take("\"")) {
            auto text = string();
            return text ? std::optional(Json(Value(std::move(*text)))) : std::nullopt;
        }
        return number();
    }

    std::optional<Json> object(int depth) {
        Object members;
        if (take("}")) return Json(Value(std::move(members)));
        do {
            auto name = take("\"") ? string() : std::nullopt;
            if (!name || !take(":")) return std::nullopt;
            auto member = value(depth + 1);
            if (!member) return std::nullopt;
            members[std::move(*name)] = std::move(*member);
        } while (take(","));
        return take("}") ? std::optional(Json(Value(std::move(members)))) : std::nullopt;
    }

    std::optional<Json> array(int depth) {
        std::vector<Json> items;
        if (take("]")) return Json(Value(std::move(items)));
        do {
            auto item = value(depth + 1);
            if (!item) return std::nullopt;
            items.push_back(std::move(*item));
        } while (take(","));
        return take("]") ? std::optional(Json(Value(std::move(items)))) : std::nullopt;
    }

    std::optional<Json> number() {
        double value = 0;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (error != std::errc()) return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        return Json(Value(value));
    }

    /// After its opening quotation mark.
    std::optional<std::string> string() {
        std::string text;
        while (!m_rest.empty()) {
            const char next = m_rest.front();
            m_rest.remove_prefix(1);
            if (next == '"') return text;
            if (next != '\\') {
                text += next;
            } else if (!escape(text)) {
                break;
            }
        }
        return std::nullopt;
    }

    bool escape(std::string& text) {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        if (m_rest.empty()) return false;
        const char letter = m_rest.front();
        m_rest.remove_prefix(1);
        if (letter == 'u') return codePoint(text);
        const std::size_t place = letters.find(letter);
        if (place == std::string_view::npos) return false;
        text += meanings[place];
        return true;
    }

    bool codePoint(std::string& text) {
        auto code = fourDigits();
        if (code && isFirstHalf(*code)) {
            if (!m_rest.starts_with("\\u")) return false;
            m_rest.remove_prefix(2);
            const auto second = fourDigits();
            if (!second || !isSecondHalf(*second)) return false;
            code = 0x10000 + ((*code - 0xD800) << 10U) + (*second - 0xDC00);
        }
        if (!code || isSecondHalf(*code)) return false;
        appendUtf8(text, *code);
        return true;
    }

    std::optional<char32_t> fourDigits() {
        constexpr std::size_t count = 4;
        constexpr int hexadecimal = 16;
        unsigned value = 0;
        if (m_rest.size() < count) return std::nullopt;
        const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + count, value, hexadecimal);
        if (error != std::errc() || end != m_rest.data() + count) return std::nullopt;
        m_rest.remove_prefix(count);
        return static_cast<char32_t>(value);
    }

    std::string_view m_rest;
};

std::optional<Json> Json::parse(std::string_view text) { return Reader(text).document(); }

const Json& Json::operator[](std::string_view name) const {
    static const Json none;
    const auto* object = std::get_if<Object>(&m_value);
    if (object == nullptr) return none;
    const auto place = object->find(name);
    return place == object->end() ? none : place->second;
}

const std::vector<Json>& Json::items() const {
    static const std::vector<Json> none;
    const auto* items = std::get_if<std::vector<Json>>(&m_value);
    return items == nullptr ? none : *items;
}

const std::string& Json::text() const {
    static const std::string none;
    const auto* text = std::get_if<std::string>(&m_value);
    return text == nullptr ? none : *text;
}

double Json::number() const {
    const auto* number = std::get_if<double>(&m_value);
    return number == nullptr ? 0 : *number;
}

bool Json::isTrue() const {
    const auto* value = std::get_if<bool>(&m_value);
    return value != nullptr && *value;
}
