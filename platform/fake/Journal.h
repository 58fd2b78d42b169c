// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// What fakes were asked to do, over all services, one line a call in the order in which they came:
/// `post("title", "text")`, `write("recordCode", 15)`, `synchronize()`.
class Journal {
  public:
    using Lines = std::vector<std::string>;

    /// An argument that is written as it is.
    struct Word {
        std::string text;
    };
    /// A mask of modifiers: "0x1100".
    static Word mask(std::uint32_t modifiers);

    /// Texts are written in quotes, without escapes.
    template <typename... Arguments>
    void note(std::string_view call, const Arguments&... arguments) {
        std::string list;
        ((list += (list.empty() ? "" : ", ") + printed(arguments)), ...);
        m_lines.push_back(std::string(call) + "(" + list + ")");
    }

    const Lines& lines() const { return m_lines; }
    /// The lines of these calls alone, in order: of({"request", "withdraw"}).
    Lines of(std::initializer_list<std::string_view> calls) const;
    void clear() { m_lines.clear(); }

  private:
    static std::string printed(std::string_view text);
    static std::string printed(const Word& word) { return word.text; }
    template <std::integral Value>
    static std::string printed(Value value) {
        if constexpr (std::same_as<Value, bool>) {
            return value ? "true" : "false";
        } else {
            return std::to_string(value);
        }
    }

    Lines m_lines;
};
