// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Windows.h"
#include "platform/desktops/Json.h"

// What can be read from sway's tree of outputs, workspaces, containers and windows, each of which is a node
// with a number.

/// As the tree has it in `fullscreen_mode`. Workspaces always fill theirs.
enum class SwayFill { nothing = 0, workspace = 1, allScreens = 2 };

std::int64_t numberOf(const Json& node);
SwayFill fillOf(const Json& node);
bool holds(const Json& node, std::int64_t number);
/// Null if there is none of that number.
const Json* nodeOf(const Json& tree, std::int64_t number);

/// Whether it is one of this process.
bool isOwn(const Json& window);
/// Those without a number in the window system are told by their process and their title.
bool isWindow(const Json& node, const OwnWindow& window);
/// The number of the node that the window is; of several, of the one that came last, once all have come.
std::optional<std::int64_t> numberOf(const Json& tree, const OwnWindow& window);

/// Null where no window has it.
const Json* focusedWindow(const Json& tree);
bool hasFocus(const Json& tree, std::int64_t number);
/// The window that has the focus on the workspace of a node, or had it last there; null without one.
const Json* focusedBeside(const Json& tree, std::int64_t number);
/// What fills the screen in front of a window: on its workspace, or on all screens.
std::optional<std::int64_t> coverOf(const Json& tree, std::int64_t window);
