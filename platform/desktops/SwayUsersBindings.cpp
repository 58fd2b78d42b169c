// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayUsersBindings.h"

#include <wordexp.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <span>
#include <sstream>
#include <string_view>

#include "platform/Sentence.h"

namespace {

/// As sway looks for them: in the folder of its configuration.
std::vector<std::string> included(const std::string& folder, const std::string& pattern) {
    std::vector<std::string> contents;
    wordexp_t found{};
    const bool isRelative =
        !pattern.empty() && std::string_view("/~$").find(pattern.front()) == std::string_view::npos;
    const std::string whole = isRelative ? folder + "/" + pattern : pattern;
    if (wordexp(whole.c_str(), &found, WRDE_NOCMD | WRDE_UNDEF) == 0) {
        for (const char* file : std::span(found.we_wordv, found.we_wordc)) {
            std::ifstream stream(file, std::ios::binary);
            std::ostringstream content;
            content << stream.rdbuf();
            contents.push_back(content.str());
        }
        wordfree(&found);
    }
    return contents;
}

}  // namespace

bool SwayUsersBindings::read(SwayConnection& sway) {
    const auto answer = sway.ask(SwayConnection::Request::config);
    const auto version = sway.ask(SwayConnection::Request::version);
    if (!answer || !version) return false;
    const std::string folder =
        std::filesystem::path(version.value()["loaded_config_file_name"].text()).parent_path();
    const SwayConfiguration configuration(
        answer.value()["config"].text(),
        [&folder](const std::string& pattern) { return included(folder, pattern); });
    m_bindings = configuration.bindings();
    return true;
}

std::optional<std::string> SwayUsersBindings::obstacleTo(const KeyGrab& grab) const {
    const bool isBound =
        std::any_of(m_bindings.begin(), m_bindings.end(), [&](const SwayConfiguration::Binding& binding) {
            if (binding.modifiers != grab.modifiers) return false;
            return binding.symbol.empty() ? binding.keycode == grab.keycode
                                          : m_types(grab.keycode, binding.symbol);
        });
    if (!isBound) return std::nullopt;
    return sentence("HotKeys", "your configuration of sway binds it");
}
