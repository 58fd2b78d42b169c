// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayCovers.h"

#include <string>
#include <utility>

SwayCovers::~SwayCovers() {
    if (m_lifted.empty()) return;
    const auto tree = m_commands.ask(SwayConnection::Request::tree);
    if (!tree) return;
    for (Lifted& lifted : m_lifted) {
        lifted.window = {};
        if (isDue(tree.value(), lifted) != Answer::no) putBack(lifted);
    }
}

/// A sway that does not tell of its windows is left as it is.
void SwayCovers::listen() {
    // What has come so far is older than what will have made room.
    dispatch();
    if (m_events) return;
    auto events = SwayConnection::open();
    if (!events || !events.value().ask(SwayConnection::Request::subscribe, R"(["window"])")) return;
    m_events.emplace(std::move(events).value());
    m_wakeups.watch(m_events->fileDescriptor());
}

void SwayCovers::noteLifted(const Json& cover, const OwnWindow& window) {
    m_lifted.push_back({numberOf(cover), fillOf(cover), window});
}

void SwayCovers::dispatch() {
    if (!m_events) return;
    while (const auto event = m_events->nextEvent()) {
        if (event->type == SwayConnection::windowEvent) follow(event->content);
    }
    if (!m_lifted.empty() && !m_events->isBroken()) return;
    m_wakeups.unwatch(m_events->fileDescriptor());
    m_events.reset();
}

void SwayCovers::follow(const Json& event) {
    const Json& node = event["container"];
    if (event["change"].text() == "fullscreen_mode" && fillOf(node) != SwayFill::nothing) {
        // Its user has the last word.
        std::erase_if(m_lifted, [&node](const Lifted& lifted) { return lifted.number == numberOf(node); });
    } else if (event["change"].text() == "close") {
        putBack();
    }
}

void SwayCovers::putBack() {
    const auto tree = m_commands.ask(SwayConnection::Request::tree);
    if (!tree) return;
    std::erase_if(m_lifted, [&](Lifted& lifted) {
        const Answer answer = isDue(tree.value(), lifted);
        if (answer == Answer::yes) putBack(lifted);
        return answer != Answer::notYet;
    });
}

/// One that has gone this moment is no loss.
void SwayCovers::putBack(const Lifted& lifted) {
    [[maybe_unused]] const auto done =
        m_commands.run("[con_id=" + std::to_string(lifted.number) + "] fullscreen enable" +
                       (lifted.fill == SwayFill::allScreens ? " global" : ""));
}

SwayCovers::Answer SwayCovers::isDue(const Json& tree, Lifted& lifted) {
    if (numberOf(tree, lifted.window)) return Answer::notYet;
    const Json* const cover = nodeOf(tree, lifted.number);
    const Json* const focused = focusedBeside(tree, lifted.number);
    if (cover == nullptr || focused == nullptr) return Answer::no;
    // On all screens it would be seen on other workspaces too.
    if (lifted.fill == SwayFill::allScreens && !hasFocus(tree, numberOf(*focused))) return Answer::no;
    if (isOwn(*focused)) {
        lifted.window = {.id = static_cast<WindowId>((*focused)["window"].number()),
                         .title = (*focused)["name"].text()};
        return Answer::notYet;
    }
    const bool isInUse = holds(*cover, numberOf(*focused)) && !coverOf(tree, lifted.number);
    return isInUse ? Answer::yes : Answer::no;
}
