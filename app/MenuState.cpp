// SPDX-License-Identifier: MIT
#include "app/MenuState.h"

MenuState menuState(const MenuFacts& facts) {
    const MenuItemState playing{.visible = facts.hasStopped && !facts.recording, .enabled = facts.hasMacro};
    return {.record = {.visible = !facts.recording},
            .stop = {.visible = facts.recording},
            .saveDelay = {.visible = facts.overlayShown},
            .play = playing,
            .multiplePlay = playing,
            .history = {.enabled = facts.hasHistory},
            .promptPlays = facts.hasMacro};
}
