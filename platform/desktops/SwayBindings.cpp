// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayBindings.h"

#include <unistd.h>

#include <array>
#include <sstream>
#include <string_view>

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
    bindings->m_users.read(bindings->m_commands);
    return bindings;
}

SwayBindings::SwayBindings(SwayConnection commands, SwayConnection events, Types types)
    : m_commands(std::move(commands)), m_events(std::move(events)), m_users(std::move(types)) {}

SwayBindings::~SwayBindings() {
    for (const Place& place : m_bound) unbind(place);
}

std::optional<std::string> SwayBindings::grab(const KeyGrab& grab, const HotKeyRequest& /*request*/) {
    const Place place{grab.keycode, grab.modifiers};
    if (auto users = m_users.obstacleTo(grab)) return users;
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
            m_users.read(m_commands);
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
