// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdlib>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "platform/Sentence.h"

/// Why something could not be done, in words for a person, who reads them in the own language.
struct Error {
    /// What was expected and what was found, one sentence without a line end; never empty.
    Sentence message;
    /// What to do about it; empty if nothing can be done.
    Sentence hint;

    friend bool operator==(const Error&, const Error&) = default;
};

/// Something else than a failure that becomes one by itself, as an Error does where failures tell more.
template <typename From, typename Failure>
concept BecomesFailure =
    std::convertible_to<From, Failure> && !std::same_as<std::remove_cvref_t<From>, Failure>;

/// A value, or what kept it from being made: an Error, or what its caller needs to know instead. Taking the
/// one that is not there ends the process.
template <typename Value = void, typename Failure = Error>
class [[nodiscard]] Result {
    static_assert(!std::same_as<Value, Failure>, "nobody could tell them apart");

  public:
    // Implicit, so that a function returns a value or a failure as it is.
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Value value) : m_content(std::in_place_index<0>, std::move(value)) {}
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Failure failure) : m_content(std::in_place_index<1>, std::move(failure)) {}
    template <BecomesFailure<Failure> From>
    requires(!std::convertible_to<From, Value>)
        // NOLINTNEXTLINE(google-explicit-constructor,bugprone-forwarding-reference-overload)
        Result(From&& from)
        : m_content(std::in_place_index<1>, std::forward<From>(from)) {}

    explicit operator bool() const { return m_content.index() == 0; }

    Value& value() & { return *checked(std::get_if<0>(&m_content)); }
    const Value& value() const& { return *checked(std::get_if<0>(&m_content)); }
    Value&& value() && { return std::move(*checked(std::get_if<0>(&m_content))); }
    const Failure& error() const& { return *checked(std::get_if<1>(&m_content)); }
    Failure&& error() && { return std::move(*checked(std::get_if<1>(&m_content))); }

  private:
    template <typename Content>
    static Content* checked(Content* content) {
        if (content == nullptr) std::abort();
        return content;
    }

    std::variant<Value, Failure> m_content;
};

/// Success without a value, or a failure.
template <typename Failure>
class [[nodiscard]] Result<void, Failure> {
  public:
    Result() = default;
    // NOLINTNEXTLINE(google-explicit-constructor)
    Result(Failure failure) : m_failure(std::move(failure)) {}
    template <BecomesFailure<Failure> From>
    // NOLINTNEXTLINE(google-explicit-constructor,bugprone-forwarding-reference-overload)
    Result(From&& from) : m_failure(std::in_place, std::forward<From>(from)) {}

    explicit operator bool() const { return !m_failure.has_value(); }

    const Failure& error() const& {
        if (!m_failure) std::abort();
        return *m_failure;
    }
    Failure&& error() && {
        if (!m_failure) std::abort();
        return *std::move(m_failure);
    }

  private:
    std::optional<Failure> m_failure;
};
