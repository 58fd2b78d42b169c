// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayConfiguration.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace {

constexpr int deepestInclude = 16;

struct ModifierName {
    std::string_view name;
    std::uint16_t mask;
};
constexpr std::array<ModifierName, 12> modifierNames = {{{"shift", 0x01},
                                                         {"lock", 0x02},
                                                         {"ctrl", 0x04},
                                                         {"control", 0x04},
                                                         {"mod1", 0x08},
                                                         {"alt", 0x08},
                                                         {"mod2", 0x10},
                                                         {"mod3", 0x20},
                                                         {"mod4", 0x40},
                                                         {"super", 0x40},
                                                         {"logo", 0x40},
                                                         {"mod5", 0x80}}};

std::string lowered(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return out;
}

bool longerFirst(const std::string& one, const std::string& other) {
    return one.size() != other.size() ? one.size() > other.size() : one < other;
}

std::vector<std::string> wordsOf(std::string_view line) {
    std::vector<std::string> words;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t start = line.find_first_not_of(" \t\r", at);
        if (start == std::string_view::npos) break;
        const std::size_t end = std::min(line.find_first_of(" \t\r", start), line.size());
        words.emplace_back(line.substr(start, end - start));
        at = end;
    }
    return words;
}

std::vector<std::string> partsOf(const std::string& combination) {
    std::vector<std::string> parts;
    for (std::size_t at = 0; at <= combination.size();) {
        const std::size_t end = std::min(combination.find('+', at), combination.size());
        parts.push_back(combination.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

std::optional<std::uint16_t> maskOf(const std::string& name) {
    const auto* const place =
        std::find_if(modifierNames.begin(), modifierNames.end(),
                     [&](const ModifierName& modifier) { return modifier.name == lowered(name); });
    return place == modifierNames.end() ? std::nullopt : std::optional(place->mask);
}

bool isAboutBindings(const std::string& command) {
    return command == "bindsym" || command == "bindcode" || command == "unbindsym" || command == "unbindcode";
}

/// Those that tell one binding from another, in order.
std::vector<std::string> kindOf(std::vector<std::string> options) {
    std::erase_if(options, [](const std::string& option) {
        return option == "--to-code" || option == "--no-repeat" || option == "--no-warn";
    });
    std::sort(options.begin(), options.end());
    return options;
}

}  // namespace

SwayConfiguration::SwayConfiguration(std::string_view text, const Includes& includes)
    : m_variables(longerFirst) {
    read(text, includes, 0);
}

std::vector<SwayConfiguration::Binding> SwayConfiguration::bindings() const {
    std::vector<Binding> bindings;
    bindings.reserve(m_bound.size());
    for (const Bound& bound : m_bound) bindings.push_back(bound.binding);
    return bindings;
}

void SwayConfiguration::read(std::string_view text, const Includes& includes, int depth) {
    std::string line;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        line += text.substr(at, end - at);
        at = end + 1;
        // A line goes on behind a backslash.
        if (line.ends_with('\\')) {
            line.back() = ' ';
            continue;
        }
        const auto words = wordsOf(line);
        if (!words.empty() && !words.front().starts_with('#')) {
            const bool definesOne = words.front() == "set";
            readLine(definesOne ? words : wordsOf(substituted(line)), includes, depth);
        }
        line.clear();
    }
}

std::string SwayConfiguration::substituted(std::string line) const {
    for (std::size_t at = line.find('$'); at != std::string::npos; at = line.find('$', at)) {
        const auto variable = std::find_if(m_variables.begin(), m_variables.end(), [&](const auto& entry) {
            return line.compare(at, entry.first.size(), entry.first) == 0;
        });
        if (variable == m_variables.end()) {
            ++at;
        } else {
            line.replace(at, variable->first.size(), variable->second);
            at += variable->second.size();
        }
    }
    return line;
}

void SwayConfiguration::readLine(const std::vector<std::string>& words, const Includes& includes, int depth) {
    if (words.front() == "}") {
        if (!m_blocks.empty()) m_blocks.pop_back();
        return;
    }
    if (words.back() == "{") {
        m_blocks.push_back(words);
        return;
    }
    if (!m_blocks.empty()) {
        const std::vector<std::string>& opener = m_blocks.back();
        if (m_blocks.size() == 1 && isAboutBindings(opener.front()))
            readBinding(opener.front(), {opener.begin() + 1, opener.end() - 1}, words, 0);
    } else if (isAboutBindings(words.front())) {
        readBinding(words.front(), {}, words, 1);
    } else if (words.front() == "set" && words.size() > 2) {
        std::string value = words[2];
        for (std::size_t i = 3; i < words.size(); ++i) value += " " + words[i];
        m_variables[words[1]] = substituted(std::move(value));
    } else if (words.front() == "include" && words.size() > 1 && depth < deepestInclude) {
        for (const std::string& text : includes(words[1])) read(text, includes, depth + 1);
    }
}

/// The options of a block are those of each of its lines.
void SwayConfiguration::readBinding(const std::string& command, std::vector<std::string> options,
                                    const std::vector<std::string>& words, std::size_t place) {
    for (; place < words.size() && words[place].starts_with("--"); ++place) options.push_back(words[place]);
    if (place >= words.size()) return;
    Binding binding;
    for (const std::string& part : partsOf(words[place])) {
        if (const auto mask = maskOf(part)) {
            binding.modifiers |= *mask;
        } else if (command.ends_with("code")) {
            std::from_chars(part.data(), part.data() + part.size(), binding.keycode);
        } else {
            binding.symbol = part;
        }
    }
    if (binding.keycode == 0 && binding.symbol.empty()) return;
    Bound bound{std::move(binding), kindOf(std::move(options))};
    if (command.starts_with("un")) {
        unbind(bound);
    } else {
        m_bound.push_back(std::move(bound));
    }
}

/// One that was given twice has taken its own place.
void SwayConfiguration::unbind(const Bound& bound) {
    std::erase_if(m_bound, [&bound](const Bound& other) {
        return other.kind == bound.kind && other.binding.modifiers == bound.binding.modifiers &&
               other.binding.keycode == bound.binding.keycode &&
               lowered(other.binding.symbol) == lowered(bound.binding.symbol);
    });
}
