// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayTree.h"

#include <unistd.h>

#include <algorithm>

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

bool isWorkspace(const Json& node) { return node["type"].text() == "workspace"; }

/// By the order in which each node's own had the focus.
const Json* focusedBelow(const Json& node) {
    const auto& order = node["focus"].items();
    if (order.empty()) return node["pid"].isNull() ? nullptr : &node;
    const Json* const first = nodeOf(node, static_cast<std::int64_t>(order.front().number()));
    return first == nullptr ? nullptr : focusedBelow(*first);
}

}  // namespace

std::int64_t numberOf(const Json& node) { return static_cast<std::int64_t>(node["id"].number()); }

SwayFill fillOf(const Json& node) {
    return isWorkspace(node) ? SwayFill::nothing
                             : static_cast<SwayFill>(static_cast<int>(node["fullscreen_mode"].number()));
}

bool holds(const Json& node, std::int64_t number) { return nodeOf(node, number) != nullptr; }

const Json* nodeOf(const Json& tree, std::int64_t number) {
    const Json* found = nullptr;
    visitNodes(tree, [&](const Json& node) {
        if (numberOf(node) == number) found = &node;
        return found != nullptr;
    });
    return found;
}

bool isOwn(const Json& window) { return window["pid"].number() == getpid(); }

bool isWindow(const Json& node, const OwnWindow& window) {
    if (window.id != Windows::none) return node["window"].number() == window.id;
    return !window.title.empty() && isOwn(node) && node["name"].text() == window.title;
}

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

const Json* focusedWindow(const Json& tree) {
    const Json* focused = nullptr;
    visitWindows(tree, [&](const Json& window) {
        if (window["focused"].isTrue()) focused = &window;
        return focused != nullptr;
    });
    return focused;
}

bool hasFocus(const Json& tree, std::int64_t number) {
    const Json* const focused = focusedWindow(tree);
    return focused != nullptr && numberOf(*focused) == number;
}

const Json* focusedBeside(const Json& tree, std::int64_t number) {
    const Json* focused = nullptr;
    visitNodes(tree, [&](const Json& node) {
        const bool isItsOwn = isWorkspace(node) && holds(node, number);
        if (isItsOwn) focused = focusedBelow(node);
        return isItsOwn;
    });
    return focused;
}

std::optional<std::int64_t> coverOf(const Json& tree, std::int64_t window) {
    std::optional<std::int64_t> cover;
    const auto findCover = [&](const Json& place, SwayFill fill) {
        return visitNodes(place, [&](const Json& node) {
            if (fillOf(node) == fill && !holds(node, window)) cover = numberOf(node);
            return cover.has_value();
        });
    };
    const bool isCovered = visitNodes(tree, [&](const Json& node) {
        return isWorkspace(node) && holds(node, window) && findCover(node, SwayFill::workspace);
    });
    if (!isCovered) findCover(tree, SwayFill::allScreens);
    return cover;
}
