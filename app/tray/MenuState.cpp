// SPDX-License-Identifier: MIT
#include "app/tray/MenuState.h"

MenuState menuState(const MenuFacts& facts) {
    const bool open = !facts.gateShut;
    const bool filesAllowed = open && !facts.overlayShown;
    const MenuItemState playing{.visible = facts.hasStopped && !facts.recording,
                                .enabled = open && facts.hasMacro};
    return {.record = {.visible = !facts.recording, .enabled = open},
            .stop = {.visible = facts.recording, .enabled = open},
            .saveDelay = {.visible = facts.overlayShown, .enabled = open},
            .play = playing,
            .multiplePlay = playing,
            .history = {.enabled = open && facts.hasHistory},
            .saveMacro = {.visible = facts.hasStopped, .enabled = filesAllowed && facts.hasMacro},
            .loadMacro = {.enabled = filesAllowed},
            .others = {.enabled = open},
            .promptPlays = facts.hasMacro,
            .overlayVisible = facts.overlayShown && !facts.screenLocked};
}
