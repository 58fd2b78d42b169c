// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace script {

/// `command down`, or `command` as the name of the key.
struct Modifier {
    std::uint32_t modifier = 0;  ///< one bit of platform/Modifiers.h
    bool down = false;

    friend bool operator==(const Modifier&, const Modifier&) = default;
};

struct Value;
using List = std::vector<Value>;

/// What an expression gives: a whole number within maxInteger, a real (finite), text (UTF-8), a constant, a
/// list.
struct Value {
    using Content = std::variant<std::int64_t, double, std::string, Modifier, List>;

    /// Of one of the types above and of no other, so that nothing is converted on the way.
    template <typename Type>
    explicit Value(Type value) : content(std::in_place_type<Type>, std::move(value)) {}

    Content content;

    template <typename Type>
    const Type* as() const {
        return std::get_if<Type>(&content);
    }

    friend bool operator==(const Value&, const Value&) = default;
};

/// Why a step of a run failed; the place is added by who knows it.
struct Failure {
    int number = 0;
    std::string message;
};

/// A value or a failure.
template <typename Type>
using Fallible = std::variant<Type, Failure>;

}  // namespace script
