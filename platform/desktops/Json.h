// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A JSON value (RFC 8259) as compositors write it. What is asked for and not there is null, empty, 0, false.
class Json {
  public:
    Json() = default;

    /// Empty where the text is no JSON, or is nested deeper than any answer is.
    static std::optional<Json> parse(std::string_view text);

    /// A member of an object.
    const Json& operator[](std::string_view name) const;
    /// An array's, in order.
    const std::vector<Json>& items() const;
    /// UTF-8.
    const std::string& text() const;
    double number() const;
    bool isTrue() const;
    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }

  private:
    class Reader;
    using Object = std::map<std::string, Json, std::less<>>;
    using Value = std::variant<std::monostate, bool, double, std::string, std::vector<Json>, Object>;

    explicit Json(Value value) : m_value(std::move(value)) {}

    Value m_value;
};
