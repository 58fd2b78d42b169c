// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayBindings.h"

#include <unistd.h>
#include <wordexp.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <span>
#include <sstream>
#include <string_view>

#include "platform/Sentence.h"

namespace {

constexpr std::array modifierNames = {"Shift", "Lock", "Ctrl", "Mod1", "Mod2", "Mod3", "Mod4", "Mod5"};

/// "Ctrl+Mod4+27"
std::string combinationOf(std::uint8_t keycode, std::uint16_t modifiers) {
    std::string text;
    for (std::size_t bit = 0; bit < modifierNames.size(); ++bit) {
        if ((modifiers >> bit & 1U) != 0) text += std::string(modifierNames[bit]) + "+";
    }
    return text + std::to_string(keycode);
}

/// What a binding of ours does: nothing, but sway tells of it. With the process, so that two do not take each
/// other's for their own.
std::string nothingOf(std::string_view what, std::uint8_t keycode, std::uint16_t modifiers) {
    std::ostringstream text;
    text << "nop keyrill " << getpid() << " " << what << " " << unsigned(keycode) << " " << modifiers;
    return text.str();
}

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

Result<std::unique_ptr<SwayBindings>> SwayBindings::open(Types types) {
    auto commands = SwayConnection::open();
    if (!commands) return commands.error();
    auto events = SwayConnection::open();
    if (!events) return events.error();
    const auto subscribed =
        events.value().ask(SwayConnection::Request::subscribe, R"(["binding","workspace","input"])");
    if (!subscribed) return subscribed.error();
    std::unique_ptr<SwayBindings> bindings(
        new SwayBindings(std::move(commands).value(), std::move(events).value(), std::move(types)));
    bindings->readConfiguration();
    return bindings;
}

SwayBindings::SwayBindings(SwayConnection commands, SwayConnection events, Types types)
    : m_commands(std::move(commands)), m_events(std::move(events)), m_types(std::move(types)) {}

SwayBindings::~SwayBindings() {
    for (const Place& place : m_bound) unbind(place);
}

void SwayBindings::readConfiguration() {
    const auto answer = m_commands.ask(SwayConnection::Request::config);
    const auto version = m_commands.ask(SwayConnection::Request::version);
    if (!answer || !version) return;
    const std::string folder =
        std::filesystem::path(version.value()["loaded_config_file_name"].text()).parent_path();
    const SwayConfiguration configuration(
        answer.value()["config"].text(),
        [&folder](const std::string& pattern) { return included(folder, pattern); });
    m_users = configuration.bindings();
}

bool SwayBindings::isUsers(const Place& place) const {
    return std::any_of(m_users.begin(), m_users.end(), [&](const SwayConfiguration::Binding& binding) {
        if (binding.modifiers != place.second) return false;
        return binding.symbol.empty() ? binding.keycode == place.first : m_types(place.first, binding.symbol);
    });
}

std::optional<std::string> SwayBindings::grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) {
    const Place place{grab.keycode, grab.modifiers};
    if (isUsers(place)) return sentence("HotKeys", "your configuration of sway binds it");
    if (m_bound.contains(place)) return std::nullopt;
    if (const auto bound = bind(place); !bound) {
        unbind(place);
        return bound.error().message;
    }
    m_bound.insert(place);
    return std::nullopt;
}

Result<void> SwayBindings::bind(const Place& place) {
    const auto& [keycode, modifiers] = place;
    const std::string combination = combinationOf(keycode, modifiers);
    return m_commands.run("bindcode --no-repeat " + combination + " " +
                          nothingOf("press", keycode, modifiers) + "; bindcode --release " + combination +
                          " " + nothingOf("release", keycode, modifiers));
}

void SwayBindings::release(const KeyGrab& grab) {
    const Place place{grab.keycode, grab.modifiers};
    if (m_bound.erase(place) != 0) unbind(place);
}

/// One that sway has forgotten is no loss.
void SwayBindings::unbind(const Place& place) {
    const std::string combination = combinationOf(place.first, place.second);
    [[maybe_unused]] const auto press = m_commands.run("unbindcode --no-repeat " + combination);
    [[maybe_unused]] const auto release = m_commands.run("unbindcode --release " + combination);
}

std::optional<SwayBindings::Event> SwayBindings::nextEvent() {
    while (auto event = m_events.nextEvent()) {
        if (event->type == SwayConnection::workspaceEvent && event->content["change"].text() == "reload") {
            m_bound.clear();
            readConfiguration();
            return Event{.kind = Event::Kind::reload};
        }
        if (event->type == SwayConnection::inputEvent && event->content["change"].text() == "xkb_layout") {
            return Event{.kind = Event::Kind::layout};
        }
        if (event->type != SwayConnection::bindingEvent) continue;
        if (auto ours = eventOf(event->content["binding"]["command"].text())) return ours;
    }
    return std::nullopt;
}

std::optional<SwayBindings::Event> SwayBindings::eventOf(const std::string& command) const {
    for (const Place& place : m_bound) {
        const auto& [keycode, modifiers] = place;
        if (command == nothingOf("press", keycode, modifiers)) {
            return Event{Event::Kind::press, keycode, modifiers};
        }
        if (command == nothingOf("release", keycode, modifiers)) {
            return Event{Event::Kind::release, keycode, modifiers};
        }
    }
    return std::nullopt;
}
