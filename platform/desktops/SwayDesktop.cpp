// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayDesktop.h"

#include <unistd.h>

#include <algorithm>
#include <string>

#include "platform/Sentence.h"

namespace {

/// Goes through all windows below a node until `visit` says that it has seen enough.
template <typename Visit>
bool visitWindows(const Json& node, const Visit& visit) {
    // Only windows belong to a process.
    if (!node["pid"].isNull() && visit(node)) return true;
    const auto visitBelow = [&](const Json& below) { return visitWindows(below, visit); };
    return std::any_of(node["nodes"].items().begin(), node["nodes"].items().end(), visitBelow) ||
           std::any_of(node["floating_nodes"].items().begin(), node["floating_nodes"].items().end(),
                       visitBelow);
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

std::optional<std::uint32_t> SwayDesktop::focusedXWindow() {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    std::optional<std::uint32_t> window;
    if (!tree) return window;
    visitWindows(tree.value(), [&](const Json& node) {
        if (node["focused"].isTrue()) window = static_cast<std::uint32_t>(node["window"].number());
        return window.has_value();
    });
    return window;
}

std::optional<SwayDesktop::Container> SwayDesktop::find(const OwnWindow& window) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    std::optional<Container> found;
    if (!tree) return found;
    visitWindows(tree.value(), [&](const Json& node) {
        const bool isIt = window.id != Windows::none
                              ? node["window"].number() == window.id
                              : node["pid"].number() == getpid() && node["name"].text() == window.title;
        if (isIt) {
            found = Container{.number = static_cast<std::int64_t>(node["id"].number()),
                              .hasFocus = node["focused"].isTrue()};
        }
        return isIt;
    });
    return found;
}

Result<void> SwayDesktop::focus(const OwnWindow& window) {
    const auto container = find(window);
    if (!container) return Error{sentence("Windows", "The window is not on the screen."), ""};
    const std::string focus = "[con_id=" + std::to_string(container->number) + "] focus";
    auto focused = m_connection.run(focus);
    if (!focused) return focused;
    const auto now = find(window);
    if (!now || now->hasFocus) return {};
    // Up to 1.7 one behind a window that fills the screen gets none, and nobody sees it.
    const auto left = m_connection.run("[con_id=__focused__] fullscreen disable");
    return left ? m_connection.run(focus) : left;
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
