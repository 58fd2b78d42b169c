// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayDesktop.h"

#include <algorithm>

namespace {

std::string lowered(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return out;
}

SwayDesktop::Window windowAt(const Json& node) {
    const std::string& native = node["app_id"].text();
    return {.number = static_cast<std::int64_t>(node["id"].number()),
            .program = native.empty() ? node["window_properties"]["class"].text() : native,
            .xWindow = static_cast<std::uint32_t>(node["window"].number())};
}

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

std::optional<SwayDesktop::Window> SwayDesktop::focused() {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    std::optional<Window> window;
    if (!tree) return window;
    visitWindows(tree.value(), [&](const Json& node) {
        if (node["focused"].isTrue()) window = windowAt(node);
        return window.has_value();
    });
    return window;
}

std::optional<SwayDesktop::Window> SwayDesktop::windowOf(std::string_view program) {
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    std::optional<Window> window;
    if (!tree) return window;
    visitWindows(tree.value(), [&](const Json& node) {
        Window here = windowAt(node);
        if (lowered(here.program) != lowered(program)) return false;
        const bool isFocused = node["focused"].isTrue();
        if (!window || isFocused) window = std::move(here);
        return isFocused;
    });
    return window;
}

Result<void> SwayDesktop::focusXWindow(std::uint32_t xWindow) {
    return m_connection.run("[id=" + std::to_string(xWindow) + "] focus");
}

std::vector<std::string> SwayDesktop::programs() {
    std::vector<std::string> found;
    const auto tree = m_connection.ask(SwayConnection::Request::tree);
    if (!tree) return found;
    visitWindows(tree.value(), [&](const Json& node) {
        const std::string program = windowAt(node).program;
        const auto isSame = [&](const std::string& one) { return lowered(one) == lowered(program); };
        const auto known = std::find_if(found.begin(), found.end(), isSame);
        const bool isFocused = node["focused"].isTrue();
        if (known != found.end() && isFocused) std::rotate(found.begin(), known, known + 1);
        if (known == found.end() && !program.empty())
            found.insert(isFocused ? found.begin() : found.end(), program);
        return false;
    });
    return found;
}

Result<void> SwayDesktop::focus(const Window& window) {
    return m_connection.run("[con_id=" + std::to_string(window.number) + "] focus");
}
