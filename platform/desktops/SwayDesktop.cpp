// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayDesktop.h"

#include <unistd.h>

#include <algorithm>
#include <string>

#include "platform/Sentence.h"

namespace {

/// Goes through all nodes below one, itself included, until `visit` says that it has seen enough.
template <typename Visit>
bool visitNodes(const Json& node, const Visit& visit) {
    if (visit(node)) return true;
    const auto visitBelow = [&](const Json& below) { return visitNodes(below, visit); };
    return std::any_of(node["nodes"].items().begin(), node["nodes"].items().end(), visitBelow) ||
           std::any_of(node["floating_nodes"].items().begin(), node["floating_nodes"].items().end(),
                       visitBelow);
}

/// The same of windows alone, which belong to a process each.
template <typename Visit>
bool visitWindows(const Json& node, const Visit& visit) {
    return visitNodes(node, [&](const Json& below) { return !below["pid"].isNull() && visit(below); });
}

std::int64_t numberOf(const Json& node) { return static_cast<std::int64_t>(node["id"].number()); }

/// Those without a number are told by their process and their title.
bool isWindow(const Json& node, const OwnWindow& window) {
    if (window.id != Windows::none) return node["window"].number() == window.id;
    return !window.title.empty() && node["pid"].number() == getpid() && node["name"].text() == window.title;
}

/// What sway calls the window; of several, the one that came last, once all have come.
std::optional<std::int64_t> numberOf(const Json& tree, const OwnWindow& window) {
    std::int64_t number = 0;
    int count = 0;
    visitWindows(tree, [&](const Json& node) {
        if (!isWindow(node, window)) return false;
        ++count;
        number = std::max(number, numberOf(node));
        return false;
    });
    return count >= window.count ? std::optional(number) : std::nullopt;
}

bool holds(const Json& node, std::int64_t number) {
    return visitNodes(node, [number](const Json& below) { return numberOf(below) == number; });
}

bool hasFocus(const Json& tree, std::int64_t number) {
    return visitWindows(tree, [number](const Json& window) {
        return window["focused"].isTrue() && numberOf(window) == number;
    });
}

/// What fills the screen in front of a window: on its workspace, or on all screens.
std::optional<std::int64_t> coverOf(const Json& tree, std::int64_t window) {
    constexpr double ofWorkspace = 1;
    constexpr double ofAllScreens = 2;
    std::optional<std::int64_t> cover;
    const auto findCover = [&](const Json& place, double mode) {
        return visitNodes(place, [&](const Json& node) {
            const bool covers =
                node["fullscreen_mode"].number() == mode && node["type"].text() != "workspace";
            if (covers && !holds(node, window)) cover = numberOf(node);
            return cover.has_value();
        });
    };
    const bool isCovered = visitNodes(tree, [&](const Json& node) {
        return node["type"].text() == "workspace" && holds(node, window) && findCover(node, ofWorkspace);
    });
    if (!isCovered) findCover(tree, ofAllScreens);
    return cover;
}

}  // namespace

std::uint32_t SwayDesktop::group() {
    const auto inputs = m_connection.ask(SwayConnection::Request::inputs);
    if (!inputs) return 0;
    std::uint32_t group = 0;
    std::size_t most = 0;
    for (const Json& input : inputs.value().items()) {
        if (input["type"].text() != "keyboard") continue;
        const bool isVirtual = input["identifier"].text().find("virtual_keyboard") != std::string::npos;
        const std::size_t layouts = input["xkb_layout_names"].items().size() * 2 + (isVirtual ? 0 : 1);
        if (layouts <= most) continue;
        most = layouts;
        group = static_cast<std::uint32_t>(std::max(0.0, input["xkb_active_layout_index"].number()));
    }
    return group;
}

bool SwayDesktop::isElsewhere(const OwnWindow& hidden) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    return tree && visitWindows(tree.value(), [&](const Json& node) {
               return node["focused"].isTrue() && !isWindow(node, hidden);
           });
}

Result<void> SwayDesktop::focus(const OwnWindow& window) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    if (!tree) return tree.error();
    const auto number = numberOf(tree.value(), window);
    if (!number) return Error{sentence("Windows", "The window is not on the screen."), ""};
    const std::string focus = "[con_id=" + std::to_string(*number) + "] focus";
    auto focused = m_connection.run(focus);
    if (!focused) return focused;
    const auto now = m_connection.ask(SwayConnection::Request::tree);
    if (!now || hasFocus(now.value(), *number)) return {};
    // Up to 1.7 one behind a window that fills the screen gets none, and nobody sees it.
    const auto cover = coverOf(now.value(), *number);
    if (!cover) return {};
    const auto uncovered = m_connection.run("[con_id=" + std::to_string(*cover) + "] fullscreen disable");
    return uncovered ? m_connection.run(focus) : uncovered;
}

void SwayDesktop::refuseFocus(const std::string& title) {
    std::string name;
    for (const char character : title) {
        if (character == '"') name += '\\';
        name += character;
    }
    // One that refuses the command gives the focus as ever.
    [[maybe_unused]] const auto told =
        m_connection.run("no_focus [pid=" + std::to_string(getpid()) + " title=\"^\\Q" + name + "\\E$\"]");
}
