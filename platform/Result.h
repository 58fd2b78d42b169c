// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <string>
#include <utility>
#include <variant>

/// Why something could not be done, in words for a person.
struct Error {
    /// What was expected and what was found, one sentence without a line end; never empty.
    std::string message;
    /// What to do about it; empty if nothing can be done.
    std::string hint;

    friend bool operator==(const Error&, const Error&) = default;
};

/// A value, or the error that kept it from being made. Taking the one that is not there ends the process.
template <typename Value = void>
class [[nodiscard]] Result {
  public:
    // Implicit, so that a function returns a value or an error as it is.
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Value value) : m_content(std::in_place_index<0>, std::move(value)) {}
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    Value& value() & { return *checked(std::get_if<0>(&m_content)); }
    const Value& value() const& { return *checked(std::get_if<0>(&m_content)); }
    Value&& value() && { return std::move(*checked(std::get_if<0>(&m_content))); }
    const Error& error() const { return *checked(std::get_if<1>(&m_content)); }

  private:
    template <typename Content>
    static Content* checked(Content* content) {
        if (content == nullptr) std::abort();
        return content;
    }

    std::variant<Value, Error> m_content;
};

/// Success without a value, or an error.
template <>
class [[nodiscard]] Result<void> {
  public:
    Result() = default;
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    const Error& error() const {
        const Error* error = std::get_if<1>(&m_content);
        if (error == nullptr) std::abort();
        return *error;
    }

  private:
    std::variant<std::monostate, Error> m_content;
};
