// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayDesktop.h"

#include <algorithm>
#include <string>

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

Result<void> SwayDesktop::focusXWindow(std::uint32_t xWindow) {
    const std::string focus = "[id=" + std::to_string(xWindow) + "] focus";
    auto focused = m_connection.run(focus);
    if (!focused || focusedXWindow() == xWindow) return focused;
    // Up to 1.7 one behind a window that fills the screen gets none, and nobody sees it.
    const auto left = m_connection.run("[con_id=__focused__] fullscreen disable");
    return left ? m_connection.run(focus) : left;
}
