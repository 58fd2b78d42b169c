// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The combinations that a user's configuration of sway binds (sway(5)), outside of modes.
///
/// Why from its text: sway lets a binding that comes later take the place of the user's without a word.
class SwayConfiguration {
  public:
    struct Binding {
        /// Real modifiers, as in keymap/ModifierMasks.h.
        std::uint16_t modifiers = 0;
        /// Either an XKB key code, or 0 and a symbol's name.
        std::uint32_t keycode = 0;
        std::string symbol;

        friend bool operator==(const Binding&, const Binding&) = default;
    };

    /// Gives the contents of the files that an `include` line names, in order.
    using Includes = std::function<std::vector<std::string>(const std::string& pattern)>;

    SwayConfiguration(std::string_view text, const Includes& includes);

    std::vector<Binding> bindings() const;

  private:
    struct Bound {
        Binding binding;
        /// The options that make it another one than the same combination without them, in order.
        std::vector<std::string> kind;
    };

    void read(std::string_view text, const Includes& includes, int depth);
    void readLine(const std::vector<std::string>& words, const Includes& includes, int depth);
    void readBinding(const std::string& command, std::vector<std::string> options,
                     const std::vector<std::string>& words, std::size_t place);
    void unbind(const Bound& bound);
    std::string substituted(std::string line) const;

    /// Names with their dollar sign, the longest first.
    std::map<std::string, std::string, bool (*)(const std::string&, const std::string&)> m_variables;
    std::vector<Bound> m_bound;
    /// The words that opened the blocks around the line.
    std::vector<std::vector<std::string>> m_blocks;
};
