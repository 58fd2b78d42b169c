// SPDX-License-Identifier: MIT
#include "platform/linux/XdgWorkspace.h"

#include <unistd.h>

#include <array>
#include <string>

#include "platform/Sentence.h"
#include "platform/linux/GLibPointers.h"

namespace {

/// In a session of its own, so that no terminal's signals reach it.
void becomeLeader(void* /*data*/) { setsid(); }

Result<> open(std::string_view text) {
    if (text.find('\0') != std::string_view::npos)
        return Error{sentence("Programs", "A text with a zero byte cannot be opened."), ""};
    std::string program = "xdg-open";
    std::string argument(text);
    std::array<char*, 3> command{program.data(), argument.data(), nullptr};
    // Without G_SPAWN_DO_NOT_REAP_CHILD it becomes a child of the system's first process.
    constexpr auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                    G_SPAWN_STDERR_TO_DEV_NULL);
    GError* error = nullptr;
    if (g_spawn_async(nullptr, command.data(), nullptr, flags, becomeLeader, nullptr, nullptr, &error) ==
        TRUE) {
        return {};
    }
    //: %1 is why, in the system's words.
    return Error{
        sentence("Programs", "The program xdg-open cannot be started: %1").arg(GFailure(error)->message),
        sentence("Programs", "Install the package xdg-utils.")};
}

}  // namespace

Result<> XdgWorkspace::openUrl(std::string_view url) { return open(url); }
